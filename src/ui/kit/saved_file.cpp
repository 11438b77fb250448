// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/saved_file.h"

#include <QSaveFile>

namespace planner {

QString saveWhole(const QString& path, const std::function<bool(QIODevice&)>& write) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    if (!write(file)) {
        file.cancelWriting();
        return QStringLiteral("il disegno non si può scrivere");
    }
    return file.commit() ? QString() : file.errorString();
}

} // namespace planner
