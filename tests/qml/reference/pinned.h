// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAnimationDriver>
#include <QVariantAnimation>

/// What must not differ from run to run. Linked into a program, it stops the calendar's clock for the whole
/// process at 10:08:36 on Saturday 14 March 2026 UTC.
namespace pinned {

/// Starts the sequence of random numbers that scripts and particles use from its beginning.
void restartRandomNumbers();

/// Makes no address on the network answer, without asking a network.
void cutNetwork();

} // namespace pinned

/// Moves every animation and every timer of QML in equal steps, and only when told to.
class SteppedAnimations : public QAnimationDriver
{
    Q_OBJECT

public:
    static constexpr int stepMilliseconds = 16;

    SteppedAnimations();

    void advance() override;
    qint64 elapsed() const override { return m_elapsed; }

private:
    qint64 m_elapsed = 0;
    // While every animation rests, a clock of Qt's own would run.
    QVariantAnimation m_unrest;
};
