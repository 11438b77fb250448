// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/option_table.h"

#include "planner_host/option_values.h"
#include "platform/system/paths.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace planner {

namespace {

using namespace option_values;

constexpr std::string_view Richiesta = "Richiesta (i campi del record di transito)";
constexpr std::string_view Archivio = "Archivio";
constexpr std::string_view Colloquio = "Colloquio con il planner";
constexpr std::string_view Uscita = "Uscita";

constexpr std::array Tabella{
    OpzioneRiga{Richiesta, "tipo", "M|G|A", "planner mensile, giornaliero o annuale (normale: M)",
                [](OpzioniHost& o, std::string_view v) { o.tipo = kind(v); }},
    OpzioneRiga{Richiesta, "giro", "",
                "mostra in giro i tre tipi, M, G e A, con un planner nuovo per ciascuno",
                [](OpzioniHost& o, std::string_view) { o.giro = true; }},
    OpzioneRiga{Richiesta, "inizio", "AAAAMMGG",
                "startdate, primo giorno del periodo (normale: 1 gennaio dell'anno)",
                [](OpzioniHost& o, std::string_view v) { o.inizio = dateText(v); }},
    OpzioneRiga{Richiesta, "fine", "AAAAMMGG",
                "enddate, ultimo giorno (normale: 31 dicembre dell'anno di inizio)",
                [](OpzioniHost& o, std::string_view v) { o.fine = dateText(v); }},
    OpzioneRiga{Richiesta, "giorno", "AAAAMMGG",
                "il giorno da mostrare: i primi 8 caratteri di valret\n"
                "(normale: oggi; 15 marzo se l'anno non è quello di oggi)",
                [](OpzioniHost& o, std::string_view v) { o.giorno = dateText(v); }},
    OpzioneRiga{Richiesta, "valret", "TESTO",
                "valret della prima richiesta così com'è, fino a 11 caratteri;\nvince su --giorno",
                [](OpzioniHost& o, std::string_view v) { o.valret = fieldText(v, 11); }},
    OpzioneRiga{Richiesta, "collab", "CC", "codice del collaboratore, 2 caratteri (normale: nessuno)",
                [](OpzioniHost& o, std::string_view v) { o.collab = fieldText(v, 2); }},
    OpzioneRiga{Richiesta, "tipocall", "C", "tipo di chiamata; \"A\" disabilita il pulsante dell'agenda",
                [](OpzioniHost& o, std::string_view v) { o.tipocall = oneCharacter(v); }},
    OpzioneRiga{Richiesta, "windowcaption", "TESTO",
                "21 caratteri: il 1° è il modo (\"N\": mensile non dettagliato,\n"
                "titolo annuale senza nome), dal 2° il titolo; \"B\" come 21° toglie\n"
                "le scadenze (normale: un titolo di prova, con \"N\" per l'annuale\n"
                "senza --collab)",
                [](OpzioniHost& o, std::string_view v) { o.windowcaption = fieldText(v, 21); }},
    OpzioneRiga{Richiesta, "planrichiesto", "C", "\"S\" disabilita il pulsante dei grafici",
                [](OpzioniHost& o, std::string_view v) { o.planrichiesto = oneCharacter(v); }},
    OpzioneRiga{Richiesta, "riservato1", "TESTO", "campo dell'host, fino a 8 caratteri: deve tornare com'era",
                [](OpzioniHost& o, std::string_view v) { o.riservato1 = fieldText(v, 8); }},
    OpzioneRiga{Richiesta, "riservato2", "TESTO",
                "campo dell'host, fino a 60 caratteri: deve tornare com'era",
                [](OpzioniHost& o, std::string_view v) { o.riservato2 = fieldText(v, 60); }},

    OpzioneRiga{Archivio, "archivio", "CARTELLA",
                "usa gli archivi di questa cartella senza toccarli: ci scrive solo il\n"
                "file di transito; senza questa opzione fa un archivio campione in una\n"
                "cartella temporanea, tolta alla fine",
                [](OpzioniHost& o, std::string_view v) { o.archivio = folder(v); }},
    OpzioneRiga{Archivio, "campione", "",
                "fa l'archivio campione anche nella cartella di --archivio (se serve\n"
                "la crea); non sovrascrive mai archivi che non ha fatto planner-host",
                [](OpzioniHost& o, std::string_view) { o.campione = true; }},
    OpzioneRiga{Archivio, "solo-archivio", "",
                "fa l'archivio campione nella cartella di --archivio e finisce",
                [](OpzioniHost& o, std::string_view) { o.soloArchivio = true; }},
    OpzioneRiga{Archivio, "conserva", "", "non toglie la cartella temporanea alla fine",
                [](OpzioniHost& o, std::string_view) { o.conserva = true; }},
    OpzioneRiga{Archivio, "check", "CARTELLA",
                "legge file di transito e archivi di un host, senza toccarli e senza\n"
                "avviare il planner, e dice che cosa non va, con record e byte",
                [](OpzioniHost& o, std::string_view v) { o.daControllare = folder(v); }},
    OpzioneRiga{
        Archivio, "anno", "AAAA",
        "anno dell'archivio campione (normale: l'anno di --inizio o --giorno,\naltrimenti quello di oggi)",
        [](OpzioniHost& o, std::string_view v) { o.anno = number(v, AnnoMinimo, AnnoMassimo); }},
    OpzioneRiga{Archivio, "collaboratori", "N", "collaboratori del campione (normale: 12)",
                [](OpzioniHost& o, std::string_view v) {
                    o.opzioniCampione.collaboratori = number(v, 1, CollaboratoriMassimi);
                }},
    OpzioneRiga{
        Archivio, "righe", "N",
        "righe di impegni del campione, fino a 32767 (normale: quante ne\nservono ai collaboratori)",
        [](OpzioniHost& o, std::string_view v) { o.opzioniCampione.righe = number(v, 1, RigheMassime); }},
    OpzioneRiga{
        Archivio, "seme", "N", "numero che sceglie il campione: a opzioni uguali, byte uguali (normale: 1)",
        [](OpzioniHost& o, std::string_view v) {
            o.opzioniCampione.seme = number<std::uint32_t>(v, 0, std::numeric_limits<std::uint32_t>::max());
        }},

    OpzioneRiga{Colloquio, "modo", "evento|polling", "come si parlano host e planner (normale: evento)",
                [](OpzioniHost& o, std::string_view v) { o.modo = mode(v); }},
    OpzioneRiga{Colloquio, "evento", "NOME", "nome dell'evento (normale: uno nuovo per ogni planner avviato)",
                [](OpzioniHost& o, std::string_view v) { o.evento = eventName(v); }},
    OpzioneRiga{Colloquio, "transito", "NOME",
                "nome del file di transito nella cartella dell'archivio\n(normale: transito.dat)",
                [](OpzioniHost& o, std::string_view v) { o.transito = transitName(v); }},
    OpzioneRiga{Colloquio, "flag", "C",
                "flag di avvio (normale: 1); con 0 in polling il planner toglie\n"
                "TvPlaOK.lck e finisce senza rispondere",
                [](OpzioniHost& o, std::string_view v) { o.flag = oneCharacter(v); }},
    OpzioneRiga{Colloquio, "planner", "FILE",
                "il programma da avviare (normale: planner, accanto a planner-host)",
                [](OpzioniHost& o, std::string_view v) { o.planner = pathOf(v); }},
    OpzioneRiga{Colloquio, "risposte", "N",
                "finisce dopo N risposte di ciascun planner, anche se nessuna è \"E\"",
                [](OpzioniHost& o, std::string_view v) { o.risposte = number(v, 1, 1'000'000); }},

    OpzioneRiga{Uscita, "mostra-byte", "", "mostra i 121 byte del record, campo per campo, prima e dopo",
                [](OpzioniHost& o, std::string_view) { o.mostraByte = true; }},
    OpzioneRiga{Uscita, "help", "", "mostra questo aiuto",
                [](OpzioniHost& o, std::string_view) { o.aiuto = true; }},
};

} // namespace

std::span<const OpzioneRiga> tabellaOpzioni() {
    return Tabella;
}

const OpzioneRiga* trovaOpzione(std::string_view nome) {
    const auto found = std::find_if(Tabella.begin(), Tabella.end(),
                                    [&](const OpzioneRiga& opzione) { return opzione.nome == nome; });
    return found == Tabella.end() ? nullptr : &*found;
}

} // namespace planner
