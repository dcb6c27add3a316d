// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/settings.h"

#include "api/logging.h"
#include "cloud/atomicfile.h"

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

QByteArray fileContent(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Settings::Settings()
{
    setBrokenStoreAside();
    writeDefaults();
}

bool Settings::boolean(const QString& name) const
{
    return m_store.value(name).toBool();
}

QString Settings::text(const QString& name) const
{
    return m_store.value(name).toString();
}

int Settings::integer(const QString& name) const
{
    const QVariant value = m_store.value(name);
    // The store's text form of a bool is a word, which toInt() would read as 0.
    return value.toString() == QLatin1String("true") ? 1 : value.toInt();
}

void Settings::set(const QString& name, const QVariant& value)
{
    m_store.setValue(name, value);
    save();
}

void Settings::setBrokenStoreAside()
{
    if (m_store.status() == QSettings::NoError)
        return;
    const QString aside = fileName() + QStringLiteral(".broken");
    QFile::remove(aside);
    const bool kept = QFile::copy(fileName(), aside);
    qCWarning(lcApi) << "The settings file" << fileName() << "is damaged; going on with what is readable."
                     << (kept ? "A copy is kept as " + aside : QStringLiteral("No copy could be kept."));
}

void Settings::writeDefaults()
{
    for (const Default& entry : firstRunDefaults()) {
        if (!m_store.contains(entry.key))
            m_store.setValue(entry.key, entry.value);
    }
    m_store.setValue(QStringLiteral("version"), programVersion);
    save();
}

// On a full disk the store can leave an empty file and still report success, so what was written is read
// back.
void Settings::save()
{
    const QByteArray before = fileContent(fileName());
    m_store.sync();
    if (m_store.status() == QSettings::NoError && !fileContent(fileName()).isEmpty())
        return;
    qCWarning(lcApi) << "Settings could not be saved to" << fileName();
    if (!before.isEmpty())
        writeFileAtomically(fileName(), before);
}
