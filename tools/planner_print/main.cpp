// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/command_line.h"
#include "options.h"
#include "platform/posix/system_clock.h"
#include "ports/runtime_errors.h"
#include "served_request/in_quotes.h"
#include "served_request/snapshot.h"
#include "ui/kit/appearance.h"
#include "ui/stampa/stampa_griglia.h"

#include <QApplication>
#include <QFile>
#include <QLoggingCategory>

#include <algorithm>
#include <memory>

namespace {

using namespace planner;

constexpr const char* Program = "planner-print";

int fail(const std::string& text, int code) {
    print(stderr, std::string(Program) + ": " + text + "\n");
    return code;
}

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

int printSnapshot(const Options& options, const Snapshot& snapshot, Data oggi) {
    if (!snapshot.controlli.tipoVisibile) {
        return fail("la richiesta non mostra alcun planner da stampare", ExitFailed);
    }
    const Painting painting;
    const DocumentoStampa documento{snapshot.controlli, snapshot.sessione, oggi, options.carta,
                                    options.totali};
    const QString path = QFile::decodeName(QByteArray::fromStdString(options.outputPath));
    const QString error = (options.formato == FormatoFile::pdf ? savePdf : savePng)(documento, path);
    return error.isEmpty() ? ExitDone
                           : fail("il file " + inQuotes(options.outputPath) +
                                      " non è stato scritto: " + error.toStdString(),
                                  ExitFailed);
}

int printPlanner(const Options& options) {
    TransitRequest richiesta;
    try {
        richiesta = readTransitFile(options.transitPath);
    } catch (const FileError&) {
        return fail("il file di transito " + inQuotes(options.transitPath) + " manca o non si può leggere",
                    ExitFailed);
    }
    const Data oggi = options.oggi ? *options.oggi : SystemClock().today();
    const auto snapshot = std::make_unique<Snapshot>(); // too large for a stack
    serveRequest(richiesta, folderOf(options.transitPath), {oggi, std::nullopt}, *snapshot);
    for (const Message& message : snapshot->messaggi) {
        fail(message.text, ExitDone);
    }
    return printSnapshot(options, *snapshot, oggi);
}

int run(std::span<const char* const> arguments) {
    try {
        const Options options = parseOptions(arguments);
        if (options.help) {
            return print(stdout, HelpText) ? ExitDone : ExitFailed;
        }
        return printPlanner(options);
    } catch (const UsageError& error) {
        return fail(std::string(error.what()) + "\n" + HelpText, ExitUsage);
    } catch (const std::exception& error) {
        return fail("errore imprevisto: " + std::string(error.what()), ExitFailed);
    }
}

} // namespace

int main(int argc, char** argv) {
    return run({argv + std::min(argc, 1), argv + argc});
}
