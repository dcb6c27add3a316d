# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
#
# The faces that are compiled in, taken from Debian's font packages: resource name, package, file. docs/fonts.md says
# why each face stands where it does; keep both in step.
set(NUVEX_FONTS
  "Components/fonts/Arial-MT-Regular.ttf|fonts-liberation2|truetype/liberation2/LiberationSans-Regular.ttf"
  "Components/fonts/Atkins-Bold.otf|fonts-manrope|truetype/manrope/Manrope-Bold.ttf"
  "Components/fonts/Atkins-Regular.ttf|fonts-manrope|truetype/manrope/Manrope-Regular.ttf"
  "Components/fonts/BerkshireSwash-Regular.ttf|fonts-vollkorn|truetype/vollkorn/Vollkorn-BlackItalic.ttf"
  "Components/fonts/Damion-Regular.ttf|fonts-kaushanscript|opentype/kaushanscript/KaushanScript-Regular.otf"
  "Components/fonts/hotpizza.ttf|fonts-cherrybomb|opentype/cherrybomb/CherryBomb-Regular.otf"
  "Components/fonts/Impact.ttf|fonts-gemunu-libre|opentype/gemunu-libre/GemunuLibre-ExtraBold.otf"
  "Components/fonts/lobster.ttf|fonts-lobster|opentype/lobster/lobster.otf"
  "Components/fonts/Lora-Regular.ttf|fonts-crosextra-caladea|truetype/crosextra/Caladea-Regular.ttf"
  "Components/fonts/Merienda-Regular.ttf|fonts-lemonada|opentype/lemonada/Lemonada-Regular.otf"
  "Components/fonts/opensans-regular-webfont.ttf|fonts-open-sans|truetype/open-sans/OpenSans-Regular.ttf"
  "Components/fonts/OstrichSans-Heavy.otf|fonts-bebas-neue|opentype/bebas-neue/BebasNeue-Bold.otf"
  "Components/fonts/Roboto-Thin.ttf|fonts-roboto-unhinted|truetype/roboto/unhinted/RobotoTTF/Roboto-Thin.ttf"
  "font/fontawesome-webfont.ttf|fonts-font-awesome|truetype/font-awesome/fontawesome-webfont.ttf")

set(NUVEX_FONT_ROOT /usr/share/fonts CACHE PATH "Folder that the distribution's font packages install below")

# nuvex_fonts(<variable>): the fonts as <alias>=<file> entries. Stops with the names of the packages that are missing.
function(nuvex_fonts variable)
  set(entries "")
  set(missing "")
  foreach(font IN LISTS NUVEX_FONTS)
    string(REPLACE "|" ";" font ${font})
    list(GET font 0 resource)
    list(GET font 1 package)
    list(GET font 2 file)
    if(NOT EXISTS ${NUVEX_FONT_ROOT}/${file})
      string(APPEND missing "\n  ${package} (${NUVEX_FONT_ROOT}/${file}, for ${resource})")
    endif()
    list(APPEND entries ${resource}=${NUVEX_FONT_ROOT}/${file})
  endforeach()
  if(missing)
    message(FATAL_ERROR "Fonts are missing. Install these packages:${missing}")
  endif()
  set(${variable} ${entries} PARENT_SCOPE)
endfunction()
