// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "app/way_out.h"

#include "platform/posix/fault_watch.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace planner {

namespace {

// The hooks of the C library and of the toolkit's messages take no context.
WayOut* theWayOut = nullptr;
QtMessageHandler toolkitMessages = nullptr;

void atEndOfProcess() {
    if (theWayOut != nullptr) {
        theWayOut->leave();
    }
}

bool hasScreen() {
    return QGuiApplication::primaryScreen() != nullptr;
}

bool isAboutScreen(const QMessageLogContext& context) {
    return !hasScreen() && context.category != nullptr &&
           std::string_view(context.category).starts_with("qt.qpa.");
}

/// The last that a lost Wayland compositor lets the toolkit say: then it ends the process on the spot.
bool tellsLostCompositor(const QString& text) {
    return hasScreen() && text.startsWith(QLatin1String("The Wayland connection "));
}

/// The toolkit tells why there is no screen before it gives up, and then at length what might be done.
void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const std::string line = text.section(QLatin1Char('\n'), 0, 0).trimmed().toStdString();
    if (theWayOut != nullptr && type == QtFatalMsg) {
        theWayOut->fail(line);
    } else if (theWayOut != nullptr && isAboutScreen(context)) {
        theWayOut->noteScreenTrouble(line);
    } else {
        toolkitMessages(type, context, text);
    }
    if (theWayOut != nullptr && tellsLostCompositor(text)) {
        theWayOut->leave();
    }
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

void WayOut::noteScreenTrouble(const std::string& trouble) {
    if (m_guaioSchermo.empty()) {
        m_guaioSchermo = "lo schermo non può essere usato: " + trouble;
    }
}

void WayOut::onFault(int signal) {
    endSoon();
    if (theWayOut != nullptr) {
        theWayOut->noteScreenTrouble("la connessione si è interrotta");
        theWayOut->fail({});
    }
    std::_Exit(128 + signal); // on the way out already
}

void WayOut::fail(const std::string& reason) const {
    theWayOut = nullptr;
    const bool noScreen = !hasScreen() && !m_guaioSchermo.empty();
    std::fprintf(stderr, "planner: %s\n", (noScreen ? m_guaioSchermo : reason).c_str());
    m_congedo();
    std::_Exit(EXIT_FAILURE);
}

} // namespace planner
