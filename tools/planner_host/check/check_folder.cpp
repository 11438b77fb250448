// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/check/check_folder.h"

#include "archive/numeric_value.h"
#include "archive/records.h"
#include "engine/request_dates.h"
#include "host/transit_request.h"
#include "planner_host/check/field_rules.h"
#include "platform/system/paths.h"
#include "ports/runtime_errors.h"

#include <map>
#include <optional>
#include <set>

namespace planner {

namespace {

constexpr std::size_t RecordMassimi = 32767;
constexpr std::size_t MesiAnno = 12;
constexpr std::string_view Tipi = "MGA";

template <typename Record>
Record recordAt(std::string_view bytes, std::size_t record) {
    Record copy;
    bytes.copy(reinterpret_cast<char*>(&copy), sizeof(Record), record * sizeof(Record));
    return copy;
}

template <typename Record>
bool isBlank(std::string_view bytes, std::size_t record) {
    return trim(bytes.substr(record * sizeof(Record), sizeof(Record))).empty();
}

/// The files of one folder, and what is said of them.
class Controllo {
public:
    Controllo(const FileSystem& files, std::filesystem::path cartella)
        : m_files(files), m_cartella(std::move(cartella)) {}

    void checkTransit(const std::string& file, Data oggi);
    void checkStaff();
    void checkLines();
    void checkYear();
    void checkHours();

    const Rilievi& rilievi() const { return m_rilievi; }

private:
    std::optional<std::string> readFile(const std::string& file);
    std::string readRecords(const std::string& file, std::size_t length);
    bool isUnknown(std::string_view codice) const;
    void noteUnassigned(std::string_view bytes);
    template <typename Record>
    void checkDay(const std::string& file, std::size_t record, std::size_t byte, const Record& riga);
    void checkMonth(std::string_view bytes, std::size_t record);

    const FileSystem& m_files;
    std::filesystem::path m_cartella;
    Rilievi m_rilievi;
    std::set<std::string> m_codici; // of the staff
    int m_anno = 0;                 // of the request; 0 for none
};

std::optional<std::string> Controllo::readFile(const std::string& file) {
    try {
        const auto input = m_files.openForReading(textOf(m_cartella / file));
        std::string bytes(input->length(), '\0');
        bytes.resize(input->read(bytes));
        if (bytes.empty()) {
            m_rilievi.add(file, "è vuoto");
        }
        return bytes;
    } catch (const FileError& error) {
        m_rilievi.add(file, std::string("non si può leggere: ") + error.what());
        return std::nullopt;
    }
}

/// The whole records of an archive.
std::string Controllo::readRecords(const std::string& file, std::size_t length) {
    std::string bytes = readFile(file).value_or("");
    const std::size_t records = bytes.size() / length;
    if (const std::size_t rest = bytes.size() % length; rest != 0) {
        m_rilievi.add(file, records, records * length,
                      "è di " + std::to_string(rest) + " byte invece di " + std::to_string(length));
    }
    if (records > RecordMassimi) {
        m_rilievi.add(file, "ha " + std::to_string(records) + " record: il planner ne legge al più " +
                                std::to_string(RecordMassimi));
    }
    bytes.resize(records * length);
    return bytes;
}

void Controllo::checkTransit(const std::string& file, Data oggi) {
    const auto bytes = readFile(file);
    if (!bytes || bytes->empty()) {
        return;
    }
    if (bytes->size() != sizeof(TransitRequest)) {
        m_rilievi.add(file, "è di " + std::to_string(bytes->size()) + " byte invece di " +
                                std::to_string(sizeof(TransitRequest)));
    }
    std::string whole = *bytes;
    whole.resize(sizeof(TransitRequest), ' ');
    const auto richiesta = recordAt<TransitRequest>(whole, 0);
    const auto known = Tipi.find(richiesta.tipoplanner.view());
    if (known == std::string_view::npos) {
        m_rilievi.add(file, 0, 8,
                      "tipoplanner " + fraVirgolette(richiesta.tipoplanner.view()) +
                          " non è \"M\", \"G\" o \"A\"");
    }
    const DateRichiesta dates = readRequestDates(
        TipoPlanner::Mensile,
        {richiesta.valret.view().substr(0, 8), richiesta.startdate.view(), richiesta.enddate.view()}, oggi);
    if (!dates.guaio.empty()) {
        m_rilievi.add(file, dates.guaio);
    } else if (dates.mostrata < dates.periodo.inizio || dates.periodo.fine < dates.mostrata) {
        m_rilievi.add(file, "il giorno da mostrare è fuori dal periodo");
    }
    m_anno = yearOf(dates.periodo.inizio);
    if (isUnknown(richiesta.collab.view())) {
        m_rilievi.add(file, 0, 86,
                      "collab " + fraVirgolette(richiesta.collab.view()) +
                          " non è il codice di nessun collaboratore");
    }
}

void Controllo::checkStaff() {
    const std::string file = "wcollab";
    const std::string bytes = readRecords(file, sizeof(Collaboratore));
    for (std::size_t record = 0; record < bytes.size() / sizeof(Collaboratore); ++record) {
        const auto collaboratore = recordAt<Collaboratore>(bytes, record);
        const std::size_t start = record * sizeof(Collaboratore);
        if (collaboratore.codice.trimmed().empty()) {
            m_rilievi.add(file, record, start, "codice è vuoto");
        } else if (!m_codici.emplace(collaboratore.codice.trimmed()).second) {
            m_rilievi.add(file, record, start,
                          "codice " + fraVirgolette(collaboratore.codice.view()) + " c'è già: vale il primo");
        }
        if (collaboratore.nome.trimmed().empty()) {
            m_rilievi.add(file, record, start + 2, "nome è vuoto");
        }
    }
}

bool Controllo::isUnknown(std::string_view codice) const {
    const std::string_view text = trim(codice);
    return !text.empty() && !m_codici.contains(std::string(text));
}

/// Lines of nobody have a row of their own; a host whose codes do not match finds all of them there.
void Controllo::noteUnassigned(std::string_view bytes) {
    std::map<std::string, std::size_t> lines; // by code
    for (std::size_t record = 0; record < bytes.size() / sizeof(RigaPlanner); ++record) {
        const auto riga = recordAt<RigaPlanner>(bytes, record);
        if (isUnknown(riga.codice.view())) {
            ++lines[riga.codice.text()];
        }
    }
    for (const auto& [codice, count] : lines) {
        m_rilievi.note("wrighipl", "il codice " + fraVirgolette(codice) + " non è di nessun collaboratore: " +
                                       std::to_string(count) + " record stanno in *NON ASSEGNATE*");
    }
}

template <typename Record>
void Controllo::checkDay(const std::string& file, std::size_t record, std::size_t byte, const Record& riga) {
    try {
        dateFromTexts(riga.giorno.view(), riga.mese.view(), riga.anno.view());
    } catch (const RuntimeError& error) {
        m_rilievi.add(file, record, byte, error.what());
    }
}

void Controllo::checkLines() {
    static constexpr std::array rules{RegolaCampo{"contatore", guaioConteggio},
                                      RegolaCampo{"durata", guaioOre}};
    const std::string file = "wrighipl";
    const std::string bytes = readRecords(file, sizeof(RigaPlanner));
    for (std::size_t record = 0; record < bytes.size() / sizeof(RigaPlanner); ++record) {
        if (isBlank<RigaPlanner>(bytes, record)) {
            continue; // they make up the number
        }
        const auto riga = recordAt<RigaPlanner>(bytes, record);
        checkDay(file, record, record * sizeof(RigaPlanner) + 2, riga);
    }
    checkFields(m_rilievi, file, bytes, RigaPlannerFields, rules);
    noteUnassigned(bytes);
}

void Controllo::checkMonth(std::string_view bytes, std::size_t record) {
    const std::string file = "wplanner";
    const auto mese = recordAt<MesePlanner>(bytes, record);
    const std::size_t start = record * sizeof(MesePlanner);
    const std::string year = std::to_string(m_anno);
    if (m_anno != 0 && mese.anno.view() != year) {
        m_rilievi.add(file, record, start,
                      "anno " + fraVirgolette(mese.anno.view()) + " non è quello della richiesta, " + year);
    }
    // Nothing follows from the month's own number: its place tells which it is.
    const auto month = static_cast<int>(record) + 1;
    if (!mese.mese.trimmed().empty() && numericValue(mese.mese.view()) != month) {
        m_rilievi.add(file, record, start + 4,
                      "mese " + fraVirgolette(mese.mese.view()) + " invece di " + twoDigits(month));
    }
}

void Controllo::checkYear() {
    static constexpr std::array rules{RegolaCampo{"segni", guaioSegno}};
    const std::string file = "wplanner";
    const std::string bytes = readRecords(file, sizeof(MesePlanner));
    const std::size_t records = bytes.size() / sizeof(MesePlanner);
    if (!bytes.empty() && records != MesiAnno) {
        m_rilievi.add(file, "ha " + std::to_string(records) + " mesi invece di 12");
    }
    for (std::size_t record = 0; record < std::min(records, MesiAnno); ++record) {
        checkMonth(bytes, record);
    }
    checkFields(m_rilievi, file, bytes, MesePlannerFields, rules);
}

void Controllo::checkHours() {
    static constexpr std::array rules{RegolaCampo{"ore", guaioOre}};
    const std::string file = "wgrafici";
    const std::string bytes = readRecords(file, sizeof(RigaGrafico));
    for (std::size_t record = 0; record < bytes.size() / sizeof(RigaGrafico); ++record) {
        const auto riga = recordAt<RigaGrafico>(bytes, record);
        const std::size_t start = record * sizeof(RigaGrafico);
        if (!isBlank<RigaGrafico>(bytes, record)) {
            checkDay(file, record, start + 2, riga);
        }
    }
    checkFields(m_rilievi, file, bytes, RigaGraficoFields, rules);
}

} // namespace

Rilievi controllaCartella(const FileSystem& files, const std::filesystem::path& cartella,
                          const std::string& transito, Data oggi) {
    Controllo controllo(files, cartella);
    controllo.checkStaff(); // first: the others name its codes
    controllo.checkTransit(transito, oggi);
    controllo.checkLines();
    controllo.checkYear();
    controllo.checkHours();
    return controllo.rilievi();
}

} // namespace planner
