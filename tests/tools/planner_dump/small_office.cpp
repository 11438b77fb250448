// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <fstream>
#include <gtest/gtest.h>

namespace planner::test {

namespace {

std::vector<RigaPlanner> marchEntries() {
    RigaPlanner mixed = entry("RM", "20060315");
    setHours(setCounter(setCounter(mixed, 1, "00002"), 7, "00001"), "0930", "0001:30");
    RigaPlanner withoutHour = entry("BL", "20060315");
    setCounter(setCounter(withoutHour, 6, "00003"), 10, "00001");
    RigaPlanner unknownCode = entry("ZZ", "20060315");
    setHours(setCounter(unknownCode, 8, "00004"), "2345", "0005:00");
    RigaPlanner concludedOnly = entry("RM", "20060331");
    setCounter(concludedOnly, 9, "00001");
    RigaPlanner otherMonth = entry("RM", "20060401");
    setCounter(otherMonth, 5, "00009");
    return {mixed, withoutHour, unknownCode, concludedOnly, otherMonth};
}

std::vector<RigaGrafico> springHours() {
    return {rigaGrafico("RM", "20060301", "0007:30"), rigaGrafico("RM", "20060315", "0004:00"),
            rigaGrafico("RM", "20060315", "0008:15"), rigaGrafico("BL", "20060315", "0004:45"),
            rigaGrafico("ZZ", "20060315", "0012:00"), rigaGrafico("VG", "20060403", "0006:00"),
            rigaGrafico("RM", "20050315", "0020:00")};
}

} // namespace

TransitRequest request(std::string_view kind) {
    TransitRequest richiesta;
    richiesta.riservato1.assign("HOST0001");
    richiesta.tipoplanner.assign(kind);
    richiesta.startdate.assign("20060301");
    richiesta.enddate.assign("20060630");
    richiesta.collab.assign("BL");
    richiesta.valret.assign("20060315");
    richiesta.Windowcaption.assign(" Studio Rossi");
    return richiesta;
}

RigaPlanner entry(std::string_view codice, std::string_view yyyymmdd) {
    RigaPlanner riga;
    riga.codice.assign(codice);
    riga.anno.assign(yyyymmdd.substr(0, 4));
    riga.mese.assign(yyyymmdd.substr(4, 2));
    riga.giorno.assign(yyyymmdd.substr(6, 2));
    for (auto& contatore : riga.contatori) {
        contatore.assign("00000");
    }
    return riga;
}

RigaPlanner& setCounter(RigaPlanner& riga, std::size_t number, std::string_view value) {
    riga.contatori.at(number - 1).assign(value);
    return riga;
}

RigaPlanner& setHours(RigaPlanner& riga, std::string_view hhmm, std::string_view durata) {
    riga.oraInizio.assign(hhmm.substr(0, 2));
    riga.minutoInizio.assign(hhmm.substr(2, 2));
    riga.durata.assign(durata);
    return riga;
}

SmallOffice::SmallOffice()
    : collaboratori{collaboratore("RM", "Rossi Mario", "Avvocato"),
                    collaboratore("BL", "Bianchi Lucia", "Segretaria"),
                    collaboratore("VG", "Verdi Gino", "")},
      righe(marchEntries()), grafici(springHours()) {
    for (MesePlanner& mese : mesi) {
        mese.anno.assign("2006");
    }
    mesi.at(2).segni.at(16).assign("*"); // 15 March
    mesi.at(0).segni.at(41).assign("*"); // beyond the grid's columns
}

void SmallOffice::write() const {
    writeFile("transito", bytesOf(richiesta));
    writeFile("wcollab", bytesOf(collaboratori));
    writeFile("wrighipl", bytesOf(righe));
    writeFile("wplanner", bytesOf(mesi));
    writeFile("wgrafici", bytesOf(grafici));
}

void SmallOffice::writeFile(std::string_view name, std::string_view bytes) const {
    std::ofstream file(m_folder.folder() / name, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    ASSERT_TRUE(file) << name;
}

void SmallOffice::removeFile(std::string_view name) const {
    ASSERT_TRUE(std::filesystem::remove(m_folder.folder() / name)) << name;
}

nlohmann::ordered_json SmallOffice::dump() const {
    write();
    return dumpAsItIs();
}

nlohmann::ordered_json SmallOffice::dumpAsItIs() const {
    return run({});
}

nlohmann::ordered_json SmallOffice::dumpWithChart(std::string_view index) const {
    write();
    return dumpWithChartAsItIs(index);
}

nlohmann::ordered_json SmallOffice::dumpWithChartAsItIs(std::string_view index) const {
    return run({"--grafico", std::string(index)});
}

nlohmann::ordered_json SmallOffice::run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {transitPath(), "--oggi", "20251120"});
    const DumpRun result = runDump(arguments);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.json();
}

std::optional<nlohmann::ordered_json> findCell(const nlohmann::ordered_json& dump, int row, int column) {
    for (const auto& cell : dump.at("griglia").at("celle")) {
        if (cell.at("r") == row && cell.at("c") == column) {
            return cell;
        }
    }
    return std::nullopt;
}

} // namespace planner::test
