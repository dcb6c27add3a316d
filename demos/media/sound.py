# SPDX-FileCopyrightText: 2026 The Nuvex developers
# SPDX-License-Identifier: MIT
"""Quiet sound for the clips, made of a few oscillators. Every score ends where it begins, so that a clip can loop."""
import wave

import numpy as np
from scipy.ndimage import gaussian_filter1d

RATE = 44100


def save(left, right, path):
    peak = max(np.abs(left).max(), np.abs(right).max(), 1e-9)
    samples = (np.stack([left, right], axis=1) / peak * 0.4 * 32767).astype("<i2")
    with wave.open(str(path), "wb") as out:
        out.setnchannels(2)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(samples.tobytes())


def pluck(seconds, start, pitch, length=3.5, bright=0.35):
    """One soft note, wrapped around the end of the loop."""
    t = np.arange(int(length * RATE)) / RATE
    note = sum(np.sin(2 * np.pi * pitch * k * t) * bright ** (k - 1) * np.exp(-t * (1.1 + 0.8 * k)) for k in range(1, 5))
    note *= np.minimum(1, t / 0.012) * np.clip((length - t) / 0.6, 0, 1)
    track = np.zeros(int(seconds * RATE))
    at = (int(start * RATE) + np.arange(len(note))) % len(track)
    np.add.at(track, at, note)
    return track


def breath(seconds, softness, seed):
    """Filtered noise that loops."""
    noise = np.random.default_rng(seed).normal(0, 1, int(seconds * RATE))
    noise = gaussian_filter1d(noise, softness, mode="wrap")
    return noise / np.abs(noise).max()


def tune(seconds, notes, air=0.06, softness=40):
    """Notes are (start in parts of the loop, pitch in hertz)."""
    left = breath(seconds, softness, 1) * air
    right = breath(seconds, softness, 2) * air
    for index, (part, pitch) in enumerate(notes):
        note = pluck(seconds, part * seconds, pitch) * 0.3
        pan = 0.5 + 0.28 * np.sin(index * 2.1)
        left += note * (1 - pan)
        right += note * pan
    return left, right


def workshop(seconds, path):
    """A turning wheel and a few notes."""
    left, right = tune(seconds, [(0.0, 261.6), (0.1, 392.0), (0.25, 329.6), (0.35, 493.9),
                                 (0.5, 220.0), (0.6, 329.6), (0.75, 261.6), (0.85, 392.0)], air=0.05, softness=90)
    t = np.arange(len(left)) / RATE
    hum = np.sin(2 * np.pi * 55 * t) * (1 + 0.3 * np.sin(2 * np.pi * 2.4 * t)) * 0.035
    save(left + hum, right + hum, path)


def kitchen(seconds, path):
    """A slow tune at the stove."""
    save(*tune(seconds, [(0.0, 196.0), (0.12, 293.7), (0.25, 349.2), (0.5, 174.6), (0.62, 261.6), (0.75, 329.6)],
               air=0.04, softness=60), path)


def bells(seconds, path):
    """A musical box."""
    notes = [(0.0, 784.0), (0.125, 987.8), (0.25, 1174.7), (0.5, 987.8), (0.625, 880.0), (0.75, 1174.7)]
    save(*tune(seconds, notes, air=0.0), path)
