// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/safetycopy.h"

#include "api/capi.h"
#include "api/limits.h"
#include "base/atomicfile.h"

#include <QFile>
#include <QtConcurrent>

SafetyCopy::SafetyCopy()
{
    m_writer.setMaxThreadCount(1);
    m_delay.setSingleShot(true);
    m_delay.setInterval(limits::safetyCopyDelay);
    connect(&m_delay, &QTimer::timeout, this, &SafetyCopy::write);
}

void SafetyCopy::keep(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    if (!m_delay.isActive())
        m_delay.start();
}

void SafetyCopy::flush()
{
    if (m_delay.isActive())
        write();
    m_writer.waitForDone();
}

void SafetyCopy::remove()
{
    m_delay.stop();
    m_text.clear();
    m_writer.waitForDone();
    QFile::remove(file());
}

void SafetyCopy::write()
{
    m_delay.stop();
    QtConcurrent::run(&m_writer,
                      [text = m_text, file = file()] { writeFileAtomically(file, text.toUtf8()); });
}

QString SafetyCopy::file() const
{
    const CAPI* capi = CAPI::of(this);
    return capi ? capi->resolvedPath(m_path) : m_path;
}
