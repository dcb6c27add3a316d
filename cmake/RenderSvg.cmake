# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
#
# Run by the build with RSVG_CONVERT, DRAWING and PICTURE: renders one drawing, 256 pixels wide unless its root element
# gives a width.
file(READ ${DRAWING} svg)
set(width --width 256 --keep-aspect-ratio)
if(svg MATCHES "<svg[^>]*[ \n]width=")
  set(width "")
endif()
execute_process(COMMAND ${RSVG_CONVERT} ${width} --output ${PICTURE} ${DRAWING} COMMAND_ERROR_IS_FATAL ANY)
