// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/editortext.h"

namespace {

const QString beforeNumber = QStringLiteral("\nproperty int element: ");
const QString afterNumber = QStringLiteral("\n"
                                           "    function evaluate(str) {      \n"
                                           "    eval(str);                    \n"
                                           "    }                             \n"
                                           "\n");
constexpr int maxDigits = 11;

} // namespace

QString editorText(const QString& source, const std::vector<int>& positions, int firstElement)
{
    QString text;
    const int insertionLength = beforeNumber.size() + maxDigits + afterNumber.size();
    text.reserve(source.size() + int(positions.size()) * insertionLength);
    int copied = 0;
    qint64 element = firstElement;
    for (const int position : positions) {
        text.append(source.constData() + copied, position - copied);
        text.append(beforeNumber).append(QString::number(element++)).append(afterNumber);
        copied = position;
    }
    return text.append(source.constData() + copied, source.size() - copied);
}
