// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "describe.h"

#include "archive/cp1252.h"

#include <array>
#include <bit>
#include <cstdio>

namespace planner {

namespace {

using Json = nlohmann::ordered_json;

std::string_view bytesOf(const TransitRequest& richiesta) {
    return {reinterpret_cast<const char*>(&richiesta), sizeof richiesta};
}

Json describeRequest(const TransitRequest& richiesta) {
    Json object = Json::object();
    for (const Field& field : TransitRequestFields) {
        object[std::string(field.name)] =
            utf8FromCp1252(bytesOf(richiesta).substr(field.offset, field.length));
    }
    return object;
}

std::string describeDate(Data data) {
    const std::string digits = formatDate(data);
    return digits.substr(0, 4) + "-" + digits.substr(4, 2) + "-" + digits.substr(6, 2);
}

std::string describeColour(Colore colore) {
    const Rgb parts = rgb(colore);
    std::array<char, sizeof "#rrggbb"> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", parts.red, parts.green, parts.blue);
    return text.data();
}

Json describeStaff(const Archivi& archivi) {
    Json list = Json::array();
    for (int i = 0; i < archivi.NumCollab; ++i) {
        const Collaboratore& person = archivi.Collaboratori.at(static_cast<std::size_t>(i));
        list.push_back({{"codice", utf8FromCp1252(person.codice.trimmedRight())},
                        {"nome", utf8FromCp1252(person.nome.trimmedRight())},
                        {"mansione", utf8FromCp1252(person.mansione.trimmedRight())}});
    }
    return list;
}

/// True for a cell that holds nothing.
bool isPlain(const Cella& cell) {
    return cell.testo == 0 && cell.immagine == 0 && !cell.impegno && !cell.segnato;
}

Json describeCell(const Griglia& griglia, int row, int column) {
    const Cella& cell = griglia.cella(row, column);
    return {{"r", row},
            {"c", column},
            {"testo", utf8FromCp1252(griglia.TextMatrix(row, column))},
            {"colore", describeColour(griglia.CellForeColor(row, column))},
            {"sfondo", describeColour(griglia.CellBackColor(row, column))},
            {"immagine", cell.immagine}};
}

Json describeCells(const Griglia& griglia) {
    Json cells = Json::array();
    for (int row = 0; row < griglia.Rows(); ++row) {
        for (int column = 0; column < griglia.Cols(); ++column) {
            if (!isPlain(griglia.cella(row, column))) {
                cells.push_back(describeCell(griglia, row, column));
            }
        }
    }
    return cells;
}

Json describeGrid(const ControlliPlcal& controlli) {
    const Griglia* griglia = controlli.grigliaVisibile();
    if (griglia == nullptr) {
        return nullptr;
    }
    return {{"nome", controlli.nomeGrigliaVisibile()},
            {"righe", griglia->Rows()},
            {"colonne", griglia->Cols()},
            {"righeFisse", griglia->FixedRows()},
            {"celle", describeCells(*griglia)}};
}

Json describeButtons(const StatoToolbar& toolbar) {
    Json list = Json::array();
    for (const DescrizionePulsante& button : PulsantiToolbar) {
        list.push_back({{"indice", static_cast<int>(button.posizione)},
                        {"chiave", button.chiave},
                        {"abilitato", toolbar.enabled(button.posizione)},
                        {"visibile", toolbar.visible(button.posizione)}});
    }
    return list;
}

Json describeMessages(const std::vector<Message>& messages) {
    Json list = Json::array();
    for (const Message& message : messages) {
        list.push_back({{"icona", message.icon == MessageIcon::Critical ? "critica" : "informazione"},
                        {"titolo", message.title},
                        {"testo", message.text}});
    }
    return list;
}

Json describeSeries(const std::vector<SerieGrafico>& series) {
    Json list = Json::array();
    for (const SerieGrafico& each : series) {
        list.push_back({{"etichetta", utf8FromCp1252(each.etichetta)}, {"valori", each.valori}});
    }
    return list;
}

Json describeTexts(const std::vector<std::string>& texts) {
    Json list = Json::array();
    for (const std::string& text : texts) {
        list.push_back(utf8FromCp1252(text));
    }
    return list;
}

} // namespace

Json describe(const Snapshot& snapshot) {
    const ControlliPlcal& controlli = snapshot.controlli;
    return {
        {"richiesta", describeRequest(snapshot.richiesta)},
        {"finestra",
         {{"didascalia", utf8FromCp1252(controlli.Caption)}, {"titolo", utf8FromCp1252(controlli.lbldescr)}}},
        {"calendario", describeDate(controlli.calendario.Value())},
        {"collaboratori", describeStaff(snapshot.sessione.archivi)},
        {"griglia", describeGrid(controlli)},
        {"totali", snapshot.sessione.TotaliImpegni.righe()},
        {"pulsanti", describeButtons(controlli.Toolbar1)},
        {"messaggi", describeMessages(snapshot.messaggi)}};
}

Json describeChart(const std::optional<Grafico>& grafico) {
    if (!grafico) {
        return nullptr;
    }
    return {{"titolo", utf8FromCp1252(grafico->TitleText)},   {"asseX", utf8FromCp1252(grafico->asseX)},
            {"asseY", utf8FromCp1252(grafico->asseY.titolo)}, {"serie", describeSeries(grafico->serie)},
            {"etichette", describeTexts(grafico->etichette)}, {"massimo", grafico->asseY.Maximum},
            {"divisioni", grafico->asseY.MajorDivision}};
}

std::string toText(const Json& object) {
    constexpr int indent = 1;
    return object.dump(indent, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace) + "\n";
}

} // namespace planner
