// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/office_seeds.h"

#include "fuzz/fuzz_input.h"
#include "fuzz/fuzzed_user.h"
#include "support/builders.h"

namespace planner::test {

namespace {

struct Office {
    std::string transito = bytesOf(richiesta());
    std::string righe, collaboratori, annuale, grafici, gesti;

    std::string bytes() const {
        return asPart(transito) + asPart(righe) + asPart(collaboratori) + asPart(annuale) + asPart(grafici) +
               gesti;
    }
};

char byteOf(int value) {
    return static_cast<char>(static_cast<unsigned char>(value));
}

std::string passo(Azione azione, int valore) {
    return {byteOf(static_cast<int>(azione)), byteOf(valore)};
}

std::string cella(Azione azione, int riga, int colonna) {
    return {byteOf(static_cast<int>(azione)), byteOf(riga - PrimaCoordinata),
            byteOf(colonna - PrimaCoordinata)};
}

std::string premi(std::string_view chiave) {
    int place = 0;
    while (PulsantiToolbar.at(static_cast<std::size_t>(place)).chiave != chiave) {
        ++place;
    }
    return passo(Azione::toolbar, place);
}

std::string numberBytes(int number) {
    return {byteOf(number), byteOf(number >> 8)};
}

/// Three people with entries, hours and one month of the year.
Office smallOffice() {
    Office office;
    office.righe =
        bytesOf(std::vector{riga("RB", "20060315", {{1, "1"}, {6, "2"}}),
                            conOrario(riga("BI", "20060315", {{8, "1"}}), "09", "30", "0001:45"),
                            conOrario(riga("7 ", "20060316", {{7, "1"}, {9, "3"}}), "23", "45", "0002:00")});
    office.collaboratori =
        bytesOf(std::vector{collaboratore("BI", "Bianchi Rosa", "Avvocato"),
                            collaboratore("RB", "Rossi Bruno"), collaboratore("7 ", "Verdi Ugo")});
    std::vector<MesePlanner> mesi = annoPlanner("2006", {{1, 3}});
    mesi.resize(1);
    mesi.front().testi.at(2).assign("   1   2   3");
    office.annuale = bytesOf(mesi);
    office.grafici = bytesOf(
        std::vector{rigaGrafico("RB", "20060315", "0007:30"), rigaGrafico("BI", "20060315", "0008:15")});
    return office;
}

std::string staffGestures() {
    // The row after the last is none.
    return premi("coll") + passo(Azione::elencoSpunta, 5) + passo(Azione::elencoSeleziona, 5) +
           passo(Azione::elencoSpunta, 3) + passo(Azione::elencoToolbar, 6) +
           passo(Azione::elencoToolbar, 7) + passo(Azione::elencoToolbar, 11) +
           passo(Azione::elencoFreccia, 4) + byteOf(static_cast<int>(Azione::elencoCerca)) + asPart("ross") +
           passo(Azione::elencoSeleziona, 2) + passo(Azione::elencoToolbar, 13);
}

Office hostileOffice() {
    Office office = smallOffice();
    office.righe =
        bytesOf(std::vector{riga("RB", "20060231", {{1, "1e999"}}), riga("RB", "99999999", {{2, "-9e99"}}),
                            conOrario(riga("BI", "20060315"), "24", "99", "9999999")});
    office.collaboratori = bytesOf(std::vector{collaboratore("\xFF\x01", std::string(50, '\x81')),
                                               collaboratore("  ", "<b>&amp;%1\r\n\t")}) +
                           "RB";
    office.annuale = bytesOf(annoPlanner("9999")).substr(0, 100);
    office.grafici = bytesOf(std::vector{rigaGrafico("RB", "20060399", "9e99900")}) + "R";
    return office;
}

std::string withPeriod(std::string_view kind, std::string_view from, std::string_view to) {
    TransitRequest request = richiesta(kind);
    request.startdate.assign(from);
    request.enddate.assign(to);
    return bytesOf(request);
}

/// The small office, asked for by the given transit file.
std::string session(const std::string& transito, const std::string& gesti) {
    Office office = smallOffice();
    office.transito = transito;
    office.gesti = gesti;
    return office.bytes();
}

/// An office without archives.
std::string onlyRequest(const std::string& transito) {
    Office office;
    office.transito = transito;
    return office.bytes();
}

std::vector<NamedSeed> gestureSeeds() {
    const std::string month = bytesOf(richiesta("M"));
    const std::string select = cella(Azione::selezionaCella, 3, 17);
    return {
        {"month", session(month, select + cella(Azione::cliccaCella, 3, 17) + premi("dettno") +
                                     passo(Azione::pulsantePeriodo, 1) + passo(Azione::scegliGiorno, 131) +
                                     premi("consult"))},
        {"day", session(bytesOf(richiesta("G")), cella(Azione::selezionaCella, 1, 39) +
                                                     passo(Azione::pulsantePeriodo, 5) + premi("grafici") +
                                                     passo(Azione::sceltaImpegno, 3) + premi("insimp"))},
        {"year", session(bytesOf(richiesta("A")), cella(Azione::selezionaCella, 1, 3) +
                                                      cella(Azione::muoveConTasto, 1, 9) + premi("grafici") +
                                                      passo(Azione::pulsantePeriodo, 7))},
        {"charts", session(month, premi("grafici") + select + premi("grafici"))},
        {"consult", session(month, premi("consult") + select + premi("consult"))},
        {"staff", session(month, staffGestures())},
        {"filters_twice", session(month, premi("filtri") + select + premi("filtri") + premi("agenda"))},
    };
}

std::vector<NamedSeed> unusualSeeds() {
    std::string reduced = bytesOf(richiesta("M"));
    reduced.replace(99, 21, "N                   b");
    return {
        {"first_to_last_year",
         session(withPeriod("M", "17530101", "99991231"),
                 passo(Azione::indicePeriodo, 2) + passo(Azione::indicePeriodo, 3) + premi("agenda"))},
        {"december_and_on", session(withPeriod("M", "20061215", "20071231"),
                                    passo(Azione::pulsantePeriodo, 1) + passo(Azione::pulsantePeriodo, 0))},
        {"reduced_window", session(reduced, cella(Azione::selezionaCella, 2, 5) + premi("insimp"))},
        {"hostile_records", hostileOffice().bytes()},
        {"short_transit_file", onlyRequest("host-001M")},
        {"blank_and_too_long", onlyRequest(std::string(130, ' '))},
    };
}

} // namespace

std::vector<NamedSeed> requestSeeds() {
    std::vector<NamedSeed> seeds = gestureSeeds();
    for (const NamedSeed& seed : unusualSeeds()) {
        seeds.push_back(seed);
    }
    return seeds;
}

std::vector<NamedSeed> chartSeeds() {
    const Office office = smallOffice();
    const Office hostile = hostileOffice();
    const std::string march = numberBytes(2006) + "\x03\x0F";
    const auto seed = [&](int width, int height, const std::string& hours, const std::string& staff) {
        return numberBytes(width) + numberBytes(height) + std::string(1, '\0') + numberBytes(1) + march +
               asPart(staff) + hours;
    };
    const std::string most = bytesOf(
        std::vector{rigaGrafico("RB", "20060315", "29788:00"), rigaGrafico("RB", "20060316", "-9e9900")});
    const std::string edges = bytesOf(
        std::vector{rigaGrafico("RB", "20060301", "-9e9900"), rigaGrafico("RB", "20060331", "10000:30")});
    return {{"screen", seed(9600, 5200, office.grafici, office.collaboratori)},
            {"narrow", seed(2400, 4000, office.grafici, office.collaboratori)},
            {"no_size", seed(0, 0, office.grafici, office.collaboratori)},
            {"negative_size", seed(-9600, -1, office.grafici, office.collaboratori)},
            {"no_records", seed(9600, 5200, "", "")},
            {"largest_and_smallest_hours", seed(9600, 5200, most, office.collaboratori)},
            {"long_values_at_the_edges", seed(2400, 4000, edges, office.collaboratori)},
            {"hostile_records", seed(9600, 5200, hostile.grafici, hostile.collaboratori)}};
}

} // namespace planner::test
