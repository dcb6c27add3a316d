// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

class QObject;

/// What becomes of particles: they need a moment to come out before there is something to hold still.
enum class Particles { Flow, Hold };

/// Brings everything below `root`, and `root` itself, to rest: animations, timers, players, films; behaviours
/// and transitions take effect at once; windows of its own stay hidden. No binding is cut, so what is bound
/// may begin to move again with the next change and has to be held again. GUI thread.
void holdStill(QObject& root, Particles particles);
