// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/text.h"

#include "archive/cp1252.h"

namespace planner {

QString fromCp1252(std::string_view bytes) {
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    qsizetype i = 0;
    for (const char byte : bytes) {
        text[i++] = QChar(Cp1252Characters[static_cast<unsigned char>(byte)]);
    }
    return text;
}

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString plainToolTip(const QString& text) {
    return text.isEmpty() ? text
                          : QStringLiteral("<p style='white-space:pre'>") + text.toHtmlEscaped() +
                                QStringLiteral("</p>");
}

} // namespace planner
