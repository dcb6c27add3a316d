// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/holdstill.h"

#include "quick/live/element.h"

#include <QMediaPlayer>
#include <QQuickItem>
#include <QSet>
#include <QWindow>

namespace {

// Qt has no public headers for most of these classes: they are known by name. Writing a property from here
// leaves its binding alone.
struct Rest
{
    const char* type;
    const char* property;
    bool value;
    bool isWhole; // what it holds is run by it and moves no more
};

constexpr Rest rests[] = {
    {"QQmlTimer", "running", false, true},
    {"QQuickBehavior", "enabled", false, true},
    {"QQuickTransition", "enabled", false, true},
    {"QQuickAnimatedImage", "paused", true, false},
    {"QQuickSpriteSequence", "running", false, true},
    {"QQuickAnimatedSprite", "running", false, true},
};

bool inherits(const QMetaObject* type, const char* name)
{
    while (type && qstrcmp(type->className(), name) != 0)
        type = type->superClass();
    return type != nullptr;
}

class Holding
{
public:
    explicit Holding(Particles particles)
        : m_particles(particles)
    {
    }

    void hold(QObject& object)
    {
        if (m_seen.contains(&object))
            return;
        m_seen.insert(&object);
        const QMetaObject& type = classOf(object);
        if (bringToRest(object, type))
            return;
        for (QObject* child : object.children())
            hold(*child);
        if (type.inherits(&QQuickItem::staticMetaObject))
            for (QQuickItem* child : static_cast<QQuickItem&>(object).childItems())
                hold(*child);
    }

private:
    // Whether that was all there is to do about the object and what it holds.
    bool bringToRest(QObject& object, const QMetaObject& type) const
    {
        for (const Rest& rest : rests)
            if (inherits(&type, rest.type)) {
                object.setProperty(rest.property, rest.value);
                return rest.isWhole;
            }
        if (inherits(&type, "QQuickAbstractAnimation"))
            return pauseAnimation(object);
        if (inherits(&type, "QQuickParticleSystem"))
            object.setProperty("paused", m_particles == Particles::Hold);
        if (type.inherits(&QWindow::staticMetaObject))
            static_cast<QWindow&>(object).setVisible(false);
        pausePlayer(object, type);
        return false;
    }

    static bool pauseAnimation(QObject& animation)
    {
        if (animation.property("running").toBool())
            animation.setProperty("paused", true);
        return true;
    }

    static void pausePlayer(QObject& object, const QMetaObject& type)
    {
        const bool isPlayer = type.indexOfProperty("playbackState") >= 0;
        const bool isPlaying =
            isPlayer && object.property("playbackState").toInt() == QMediaPlayer::PlayingState;
        if (isPlaying || inherits(&type, "TransparentVideo"))
            QMetaObject::invokeMethod(&object, "pause");
    }

    Particles m_particles;
    QSet<const QObject*> m_seen;
};

} // namespace

void holdStill(QObject& root, Particles particles)
{
    Holding(particles).hold(root);
}
