// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "app/way_out.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace planner {

namespace {

// The hooks of the C library and of the toolkit's messages take no context.
const WayOut* theWayOut = nullptr;
QtMessageHandler toolkitMessages = nullptr;

void atEndOfProcess() {
    if (theWayOut != nullptr) {
        theWayOut->leave();
    }
}

void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg && theWayOut != nullptr) {
        theWayOut->fail(text.section(QLatin1Char('\n'), 0, 0).toLocal8Bit().constData());
    }
    toolkitMessages(type, context, text);
}

} // namespace

WayOut::WayOut(std::function<bool()> congedo) : m_congedo(std::move(congedo)) {
    theWayOut = this;
    toolkitMessages = qInstallMessageHandler(onMessage);
    std::atexit(atEndOfProcess);
}

WayOut::~WayOut() {
    qInstallMessageHandler(nullptr);
    theWayOut = nullptr;
}

void WayOut::leave() const {
    theWayOut = nullptr;
    std::_Exit(m_congedo() ? EXIT_SUCCESS : EXIT_FAILURE);
}

void WayOut::fail(const char* reason) const {
    theWayOut = nullptr;
    std::fprintf(stderr, "planner: %s\n", reason);
    m_congedo();
    std::_Exit(EXIT_FAILURE);
}

} // namespace planner
