// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "served_request/snapshot.h"

#include "engine/clsplg.h"
#include "forms/plfgraf/visualizza_grafico.h"
#include "platform/system/system_file_system.h"
#include "ports/guard.h"
#include "served_request/quiet_ports.h"

#include <array>
#include <bit>

namespace planner {

namespace {

void serve(clsplg& engine, const TransitRequest& richiesta, const std::string& folder) {
    std::string tipoplanner = richiesta.tipoplanner.text();
    std::string collab = richiesta.collab.text();
    std::string valret = richiesta.valret.text();
    std::string Windowcaption = richiesta.Windowcaption.text();
    std::string planrichiesto = richiesta.planrichiesto.text();
    engine.WPlanner(tipoplanner, richiesta.startdate.text(), richiesta.enddate.text(), folder,
                    richiesta.tipocall.text(), collab, valret, Windowcaption, planrichiesto);
}

/// What the command for charts does, up to where the chart would appear.
void openChart(clsplg& engine, IndiceCollaboratore collab, MessageBoxes& messages, Snapshot& snapshot) {
    engine.LeggiDatiPerGrafici();
    const ControlliPlcal& controlli = snapshot.controlli;
    plfgraf form(snapshot.sessione.archivi, controlli.calendario);
    runCommand(messages, [&] {
        if (visualizzaGrafico(form, controlli.tipoVisibile, collab, messages)) {
            snapshot.grafico = *form.visibile();
        }
    });
}

} // namespace

TransitRequest readTransitFile(const std::string& path) {
    std::array<char, sizeof(TransitRequest)> bytes;
    bytes.fill(' ');
    SystemFileSystem::peekStart(path, bytes);
    return std::bit_cast<TransitRequest>(bytes);
}

void serveRequest(const TransitRequest& richiesta, const std::string& folder, const Utente& utente,
                  Snapshot& snapshot) {
    snapshot.richiesta = richiesta;
    HiddenWindow window;
    ReadOnlyFileSystem files;
    MessageLog messages(snapshot.messaggi);
    ImmediateEnd events(snapshot.sessione);
    const FixedClock clock(utente.oggi);
    clsplg engine({snapshot.sessione, snapshot.controlli, window, files, messages, events, clock});
    serve(engine, richiesta, folder);
    if (utente.grafico) {
        openChart(engine, *utente.grafico, messages, snapshot);
    }
}

} // namespace planner
