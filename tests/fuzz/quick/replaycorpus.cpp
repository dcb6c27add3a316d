// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Runs the fuzzer's entry over the files of the folder that is named on the command line.

#include <QDir>
#include <QTextStream>

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size);

int main(int argc, char** argv)
{
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    int replayed = 0;
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uchar*>(input.constData()), size_t(input.size()));
        ++replayed;
    }
    QTextStream(stdout) << replayed << " inputs replayed\n";
    return replayed > 0 ? 0 : 1;
}
