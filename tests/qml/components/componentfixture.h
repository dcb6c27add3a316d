// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/capi.h"
#include "app/qmlcontext.h"

#include <QColor>
#include <QQmlEngine>
#include <QTemporaryDir>

#include <memory>

/// What component tests in QML need of the program: the context properties, a project with media made on the
/// spot, and everything that was logged as a warning. Published as "fixture". GUI thread.
class ComponentFixture : public QObject
{
    Q_OBJECT

public:
    ComponentFixture();
    ~ComponentFixture() override;

    /// Publishes the context properties of the program and this object, as start-up does.
    void publish(QQmlEngine& engine);

    CAPI& capi() const { return *m_capi; }
    /// File names of all component documents with a contract: those of the module and the unlisted ones.
    Q_INVOKABLE QStringList components() const;
    /// Source text of the component file `fileName`.
    Q_INVOKABLE QString source(const QString& fileName) const;
    /// File URL of `name` in the project.
    Q_INVOKABLE QUrl url(const QString& name) const;
    /// Writes a picture of one colour into the project.
    Q_INVOKABLE void makePicture(const QString& name, const QColor& color, int width = 64,
                                 int height = 64) const;
    /// Writes a picture that ends too early.
    Q_INVOKABLE void makeCutPicture(const QString& name) const;
    /// Writes a green picture of 16000 x 9000 pixels.
    Q_INVOKABLE void makeEnormousPicture(const QString& name) const;
    /// Writes a film of one colour, 25 frames a second, into the project; the suffix tells its kind.
    Q_INVOKABLE void makeClip(const QString& name, const QString& color, double seconds,
                              const QString& size = QStringLiteral("160x90")) const;
    /// Writes bytes that are no picture and no video.
    Q_INVOKABLE void makeGarbage(const QString& name) const;
    /// The program's chroma key of a pixel { r, g, b } under `light`, bounded as in a frame; `key` has the
    /// members th, a2, amt and plus.
    Q_INVOKABLE QVariantMap keyed(const QVariantMap& pixel, const QColor& light,
                                  const QVariantMap& key) const;
    /// Sets the time zone of the process, as "Europe/Berlin".
    Q_INVOKABLE void setTimeZone(const QString& name);
    /// Starts taking down warnings, those of the QML engine and of the program, or `all` that are logged.
    Q_INVOKABLE void recordWarnings(bool all = false);
    Q_INVOKABLE int warningCount() const { return m_warnings.size(); }
    /// Warnings since recordWarnings() or the last call.
    Q_INVOKABLE QStringList takeWarnings();

    bool recordsAll() const { return m_recordsAll; }
    void addWarning(const QString& text) { m_warnings.append(text); }

private:
    QTemporaryDir m_home;
    std::unique_ptr<CAPI> m_capi;
    std::unique_ptr<QmlContext> m_context;
    QStringList m_warnings;
    bool m_recordsAll = false;
};
