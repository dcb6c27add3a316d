// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/holdstill.h"

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
        if (bringToRest(object))
            return;
        for (QObject* child : object.children())
            hold(*child);
        if (auto* item = qobject_cast<QQuickItem*>(&object))
            for (QQuickItem* child : item->childItems())
                hold(*child);
    }

private:
    // Whether that was all there is to do about the object and what it holds.
    bool bringToRest(QObject& object) const
    {
        for (const Rest& rest : rests)
            if (object.inherits(rest.type)) {
                object.setProperty(rest.property, rest.value);
                return rest.isWhole;
            }
        if (object.inherits("QQuickAbstractAnimation"))
            return pauseAnimation(object);
        if (object.inherits("QQuickParticleSystem"))
            object.setProperty("paused", m_particles == Particles::Hold);
        if (auto* window = qobject_cast<QWindow*>(&object))
            window->setVisible(false);
        pausePlayer(object);
        return false;
    }

    static bool pauseAnimation(QObject& animation)
    {
        if (animation.property("running").toBool())
            animation.setProperty("paused", true);
        return true;
    }

    static void pausePlayer(QObject& object)
    {
        const QVariant state = object.property("playbackState");
        const bool isPlaying = state.isValid() && state.toInt() == QMediaPlayer::PlayingState;
        if (isPlaying || object.inherits("TransparentVideo"))
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
