// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>

#include <optional>

/// The program's settings: one flat namespace of keys in the platform's store, user scope, under the
/// application's organisation and name. GUI thread.
///
/// A store that cannot be read is set aside as "<file>.broken" with a log line, and the program goes on with
/// what was readable. A write that does not reach the disk puts the previous file back.
class Settings
{
public:
    /// Opens the store, writes defaults for absent keys, and the running program's version.
    Settings();

    /// The value as bool; false when missing.
    bool boolean(const QString& name) const;
    /// The value as text; empty when missing.
    QString text(const QString& name) const;
    /// The value as integer, a stored bool as 0 or 1; 0 when missing.
    int integer(const QString& name) const;
    /// Stores the value on disk before it returns; a failure is logged.
    void set(const QString& name, const QVariant& value);

    /// Path of the file behind the store.
    QString fileName() const { return m_store->fileName(); }

private:
    void setBrokenStoreAside();
    void writeDefaults();
    void save();

    std::optional<QSettings> m_store;
};
