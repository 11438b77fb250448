// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "options.h"
#include "platform/system/this_process.h"
#include "served_request/in_quotes.h"
#include "served_request/tool.h"
#include "ui/kit/appearance.h"
#include "ui/stampa/stampa_griglia.h"

#include <QApplication>
#include <QFile>
#include <QLoggingCategory>

namespace {

using namespace planner;

constexpr const char* Program = "planner-print";

/// What the toolkit needs to paint, without a display. It takes no switch of its own.
class Painting {
public:
    Painting() : m_application(prepared(m_count), m_arguments.data()) { setUpAppearance(m_application); }

private:
    static int& prepared(int& count) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false")); // of missing user folders
        qunsetenv("QT_SCALE_FACTOR");
        return count;
    }

    std::string m_name = Program;
    std::array<char*, 2> m_arguments{m_name.data(), nullptr};
    int m_count = 1;
    QApplication m_application;
};

void printSnapshot(const Options& options, const Snapshot& snapshot) {
    if (!snapshot.controlli.tipoVisibile) {
        throw ToolFailure("la richiesta non mostra alcun planner da stampare");
    }
    const Painting painting;
    const DocumentoStampa documento{snapshot.controlli, snapshot.sessione, todayOf(options), options.carta,
                                    options.totali};
    const QString path = QFile::decodeName(QByteArray::fromStdString(options.outputPath));
    const QString error = (options.formato == FormatoFile::pdf ? savePdf : savePng)(documento, path);
    if (!error.isEmpty()) {
        throw ToolFailure("il file " + inQuotes(options.outputPath) +
                          " non è stato scritto: " + error.toStdString());
    }
}

void printPlanner(const Options& options) {
    const auto snapshot = serveTransitFile(options, {todayOf(options), std::nullopt});
    for (const Message& message : snapshot->messaggi) {
        say(Program, message.text);
    }
    printSnapshot(options, *snapshot);
}

} // namespace

int main(int argc, char** argv) {
    return runTool(Program, programArguments(argc, argv), HelpText, parseOptions, printPlanner);
}
