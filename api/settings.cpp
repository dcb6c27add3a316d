// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/settings.h"

#include "api/logging.h"
#include "base/atomicfile.h"

#include <QFile>

namespace {

struct Default
{
    const char* key;
    QVariant value;
};

const QString programVersion = QStringLiteral("118");

QList<Default> firstRunDefaults()
{
    return {{"firstTime", true},      {"lastProject", QString()}, {"doOnStart", QStringLiteral("play")},
            {"userEmail", QString()}, {"playerUID", QString()},   {"shareFolder", true}};
}

bool isDamaged(const QSettings& store)
{
    // Sections are only parsed, and faults in them noticed, when their keys are asked for. A line without a
    // key is not noticed at all, but makes the file unreadable once it is written again.
    const QStringList keys = store.allKeys();
    return keys.contains(QString()) || store.status() == QSettings::FormatError;
}

QByteArray fileContent(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Settings::Settings()
{
    m_store.emplace();
    setBrokenStoreAside();
    writeDefaults();
}

bool Settings::boolean(const QString& name) const
{
    return m_store->value(name).toBool();
}

QString Settings::text(const QString& name) const
{
    return m_store->value(name).toString();
}

int Settings::integer(const QString& name) const
{
    const QVariant value = m_store->value(name);
    // The store's text form of a bool is a word, which toInt() would read as 0.
    return value.toString() == QLatin1String("true") ? 1 : value.toInt();
}

void Settings::set(const QString& name, const QVariant& value)
{
    m_store->setValue(name, value);
    save();
}

// A store that has met a damaged file never writes again, so another one takes over what could be read.
void Settings::setBrokenStoreAside()
{
    if (!isDamaged(*m_store))
        return;
    const QString file = fileName();
    const QString aside = file + QStringLiteral(".broken");
    QVariantMap readable; // only keys that the program knows: others may be debris
    for (const Default& entry : firstRunDefaults()) {
        if (m_store->contains(entry.key))
            readable[entry.key] = m_store->value(entry.key);
    }
    QFile::remove(aside);
    const bool kept = QFile::rename(file, aside);
    qCWarning(lcApi) << "The settings file" << file << "is damaged; going on with what is readable."
                     << (kept ? "It is kept as " + aside : QStringLiteral("It could not be set aside."));
    m_store.emplace();
    for (auto it = readable.cbegin(); it != readable.cend(); ++it)
        m_store->setValue(it.key(), it.value());
}

void Settings::writeDefaults()
{
    for (const Default& entry : firstRunDefaults()) {
        if (!m_store->contains(entry.key))
            m_store->setValue(entry.key, entry.value);
    }
    m_store->setValue(QStringLiteral("version"), programVersion);
    save();
}

// On a full disk the store can leave an empty file and still report success, so what was written is read
// back.
void Settings::save()
{
    const QByteArray before = fileContent(fileName());
    m_store->sync();
    if (m_store->status() == QSettings::NoError && !fileContent(fileName()).isEmpty())
        return;
    qCWarning(lcApi) << "Settings could not be saved to" << fileName();
    if (!before.isEmpty())
        writeFileAtomically(fileName(), before);
}
