// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "app/support_log.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cstdlib>

namespace planner {

namespace {

std::string timeAndProcess() {
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toStdString() + " " +
           std::to_string(QCoreApplication::applicationPid());
}

} // namespace

SupportLog::SupportLog() : m_diario(m_file, timeAndProcess) {
    if (const char* path = std::getenv("PLANNER_LOG")) {
        m_file.open(path, std::ios::app);
    }
}

} // namespace planner
