// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "sample_archive/lines.h"

#include "sample_archive/digits.h"
#include "sample_archive/sample_random.h"
#include "sample_archive/staff_list.h"

#include <algorithm>
#include <array>

namespace planner {

namespace {

constexpr int PercentualeSenzaOra = 5;
constexpr int InizioGiornata = 8 * 60; // minutes after midnight
constexpr int FineGiornata = 18 * 60 + 30;

/// Kinds of entries, as bits of a set.
enum Tipo : unsigned { NoteRiservate = 1, ImpegniVari = 2, Scadenze = 4, Pratiche = 8 };
constexpr std::array TuttiTipi{NoteRiservate, ImpegniVari, Scadenze, Pratiche};

/// Deals the kinds of a day from a deck that holds each of the 15 sets, the single kinds most often: so every
/// picture shows up again and again, whatever the seed.
class MazzoTipi {
public:
    unsigned deal(SampleRandom& random) {
        if (m_deck.empty()) {
            refill();
        }
        const auto index = static_cast<std::size_t>(random.below(static_cast<int>(m_deck.size())));
        std::swap(m_deck[index], m_deck.back());
        const unsigned tipi = m_deck.back();
        m_deck.pop_back();
        return tipi;
    }

private:
    void refill() {
        constexpr std::array<int, 16> copies{0, 5, 8, 1, 10, 1, 2, 1, 10, 1, 2, 1, 4, 1, 2, 1}; // by set
        for (unsigned tipi = 1; tipi < copies.size(); ++tipi) {
            m_deck.insert(m_deck.end(), static_cast<std::size_t>(copies[tipi]), tipi);
        }
    }

    std::vector<unsigned> m_deck;
};

void setCounter(RigaPlanner& riga, std::size_t number, int value) {
    riga.contatori.at(number - 1).assign(padded(value, 5));
}

struct CoppiaContatori {
    std::size_t first;
    std::size_t second;
    std::size_t firstDone;
    std::size_t secondDone;
};

constexpr CoppiaContatori ContatoriScadenze{1, 5, 3, 9};
constexpr CoppiaContatori ContatoriPratiche{2, 6, 4, 10};

/// Spreads `count` entries, and those of them that are concluded, over a kind's two counters.
void setPair(RigaPlanner& riga, const CoppiaContatori& contatori, int count, int percentDone,
             SampleRandom& random) {
    const int inSecond = random.below(count + 1);
    int done = 0;
    for (int i = 0; i < count; ++i) {
        done += random.chance(percentDone) ? 1 : 0;
    }
    const int secondDone = std::min(done, inSecond);
    setCounter(riga, contatori.first, count - inSecond);
    setCounter(riga, contatori.second, inSecond);
    setCounter(riga, contatori.firstDone, done - secondDone);
    setCounter(riga, contatori.secondDone, secondDone);
}

void setCounters(RigaPlanner& riga, unsigned tipi, int pressione, SampleRandom& random) {
    for (std::size_t number = 1; number <= riga.contatori.size(); ++number) {
        setCounter(riga, number, 0);
    }
    if ((tipi & NoteRiservate) != 0) {
        setCounter(riga, 7, random.between(1, 2));
    }
    if ((tipi & ImpegniVari) != 0) {
        const int count = random.between(1, 3);
        setCounter(riga, 8, count);
        setCounter(riga, 11, random.below(count + 1));
    }
    if ((tipi & Scadenze) != 0) {
        setPair(riga, ContatoriScadenze, random.between(1, 2 + pressione / 16), 65, random);
    }
    if ((tipi & Pratiche) != 0) {
        setPair(riga, ContatoriPratiche, random.between(1, 3), 45, random);
    }
}

void setTime(RigaPlanner& riga, int start, int minutes) {
    riga.oraInizio.assign(padded(start / 60, 2));
    riga.minutoInizio.assign(padded(start % 60, 2));
    riga.durata.assign(lengthText(minutes));
}

/// Puts the line into its share of the working day: line `index` of `count`. Some lines have no hour.
void setHours(RigaPlanner& riga, int index, int count, SampleRandom& random) {
    if (random.chance(PercentualeSenzaOra)) {
        riga.durata.assign(lengthText(0));
        return;
    }
    const int quarters = (FineGiornata - InizioGiornata) / QuartoDora;
    const int first = quarters * index / count;
    const int available = std::max(1, quarters * (index + 1) / count - first);
    const int longest = std::min({available, 14, 2 + random.below(13)});
    const int length = random.between(1, longest);
    const int start = first + random.below(available - length + 1);
    setTime(riga, InizioGiornata + start * QuartoDora, length * QuartoDora);
}

RigaPlanner blankLine(std::string_view codice, Data data) {
    RigaPlanner riga;
    riga.codice.assign(codice);
    riga.anno.assign(padded(yearOf(data), 4));
    riga.mese.assign(padded(monthOf(data), 2));
    riga.giorno.assign(padded(dayOf(data), 2));
    riga.campo24.assign("\r\n"); // lets a text viewer show a line each
    return riga;
}

/// One of the kinds in the set, the next one for each further `turn`.
unsigned oneOf(unsigned tipi, int turn) {
    std::vector<unsigned> present;
    std::copy_if(TuttiTipi.begin(), TuttiTipi.end(), std::back_inserter(present),
                 [&](unsigned tipo) { return (tipi & tipo) != 0; });
    return present[static_cast<std::size_t>(turn) % present.size()];
}

/// How many lines each staff member has on each day: [day x staff + staff index]. The shares follow the
/// work's weight, and their sum is exactly `lines`.
std::vector<int> spreadLines(const Ufficio& ufficio, int lines, SampleRandom& random) {
    std::vector<std::uint64_t> until; // running sum of the weights
    std::uint64_t sum = 0;
    for (std::size_t day = 0; day < ufficio.giorni.size(); ++day) {
        const int pressione = ufficio.giorni[day].pressione;
        for (std::size_t who = 0; who < ufficio.collaboratori.size(); ++who) {
            const int quiet = random.chance(30 - pressione / 4) ? 1 : random.between(60, 140);
            const int weight =
                ufficio.presenze[who][day] ? (60 + pressione) * ufficio.caricoLavoro(who) * quiet : 0;
            sum += static_cast<std::uint64_t>(weight);
            until.push_back(sum);
        }
    }
    std::vector<int> counts;
    int spread = 0;
    for (const std::uint64_t weight : until) {
        const auto due = static_cast<int>(static_cast<std::uint64_t>(lines) * weight / sum);
        counts.push_back(due - spread);
        spread = due;
    }
    return counts;
}

/// Writes the lines, day after day.
class ScrittoreRighe {
public:
    ScrittoreRighe(const Ufficio& ufficio, SampleRandom random) : m_ufficio(ufficio), m_random(random) {}

    void addStaffDay(std::size_t who, const GiornoLavorativo& giorno, int count) {
        if (count == 0) {
            return;
        }
        unsigned tipi = m_mazzo.deal(m_random);
        tipi |= m_random.chance(giorno.pressione * 3 / 4) ? Scadenze : 0u;
        for (int index = 0; index < count; ++index) {
            const bool last = index == count - 1;
            add(m_ufficio.collaboratori[who].codice.view(), giorno, last ? tipi : oneOf(tipi, index), index,
                count);
        }
    }

    void addUnassigned(const GiornoLavorativo& giorno) {
        const bool blank = m_random.chance(35);
        add(blank ? std::string_view{} : CodiceSconosciuto, giorno, m_random.chance(60) ? Pratiche : Scadenze,
            0, 1);
    }

    std::vector<RigaPlanner> take() { return std::move(m_righe); }

private:
    void add(std::string_view codice, const GiornoLavorativo& giorno, unsigned tipi, int index, int count) {
        RigaPlanner riga = blankLine(codice, giorno.data);
        setCounters(riga, tipi, giorno.pressione, m_random);
        setHours(riga, index, count, m_random);
        m_righe.push_back(riga);
    }

    const Ufficio& m_ufficio;
    SampleRandom m_random;
    MazzoTipi m_mazzo;
    std::vector<RigaPlanner> m_righe;
};

int plausibleLines(const OpzioniCampione& opzioni) {
    constexpr int linesPerPerson = 275;
    const int lines = opzioni.righe > 0 ? opzioni.righe : opzioni.collaboratori * linesPerPerson;
    return std::clamp(lines, opzioni.collaboratori + 1, RigheMassime);
}

} // namespace

std::vector<RigaPlanner> creaRighe(const OpzioniCampione& opzioni, const Ufficio& ufficio) {
    constexpr std::uint64_t lineStream = 0x4C494E45;
    SampleRandom random(opzioni.seme ^ (lineStream << 32));
    const int lines = plausibleLines(opzioni);
    const int unassigned = std::min(std::max(3, lines / 150), lines / 2);
    const std::vector<int> counts = spreadLines(ufficio, lines - unassigned, random);
    const int days = static_cast<int>(ufficio.giorni.size());
    const std::size_t staff = ufficio.collaboratori.size();

    ScrittoreRighe scrittore(ufficio, random);
    for (int day = 0; day < days; ++day) {
        const auto index = static_cast<std::size_t>(day);
        for (std::size_t who = 0; who < staff; ++who) {
            scrittore.addStaffDay(who, ufficio.giorni[index], counts[index * staff + who]);
        }
        for (int n = unassigned * day / days; n < unassigned * (day + 1) / days; ++n) {
            scrittore.addUnassigned(ufficio.giorni[index]);
        }
    }
    return scrittore.take();
}

} // namespace planner
