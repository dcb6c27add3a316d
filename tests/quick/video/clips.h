// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// Makes a clip of `frames` pictures of 64 x 48, 25 a second. The left half is red, and green from picture
/// `firstGreen` on; its lower third is half transparent. The right half is transparent. `codec` are ffmpeg's
/// encoder options. False, with ffmpeg's own words in the log, when it fails.
inline bool makeAlphaClip(const QString& path, const QStringList& codec, int frames, int firstGreen)
{
    const QString picture =
        QStringLiteral("color=black:s=64x48:r=25,format=rgba,geq=b=0:r='if(lt(N,%1),255,0)'"
                       ":g='if(lt(N,%1),0,255)':a='if(lt(X,32),if(lt(Y,32),255,128),0)'")
            .arg(firstGreen);
    QProcess ffmpeg;
    ffmpeg.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    ffmpeg.start("ffmpeg", QStringList{"-v", "error", "-y", "-f", "lavfi", "-i", picture, "-frames:v"} +
                               QStringList(QString::number(frames)) + codec + QStringList(path));
    return ffmpeg.waitForFinished(60000) && ffmpeg.exitCode() == 0;
}
