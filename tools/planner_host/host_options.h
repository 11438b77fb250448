// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_archive/sample_archive.h"
#include "session/dates.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace planner {

enum class Modo { Evento, Polling };

/// What the command line asks for. Texts that go into the request are Windows-1252 and fit their fields;
/// what was not given is empty.
struct OpzioniHost {
    bool aiuto = false;
    bool giro = false;
    bool campione = false;
    bool soloArchivio = false;
    bool conserva = false;
    bool mostraByte = false;

    char tipo = 'M';
    char tipocall = ' ';
    char planrichiesto = ' ';
    char flag = '1';
    Modo modo = Modo::Evento;
    int risposte = 0; // 0: no limit

    std::string inizio; // yyyymmdd
    std::string fine;   // yyyymmdd
    std::string giorno; // yyyymmdd
    std::string valret;
    std::string collab;
    std::string windowcaption;
    std::string riservato1;
    std::string riservato2;

    std::filesystem::path
        daControllare;              // a host's folder, to be read and judged; empty: to talk with a planner
    std::filesystem::path archivio; // empty: a fresh temporary folder
    OpzioniCampione opzioniCampione;
    std::optional<int> anno; // as given; `opzioniCampione.anno` always holds a year

    std::filesystem::path planner; // empty: the planner beside this program
    std::string transito = "transito.dat";
    std::string evento;
};

/// Reads the arguments, the program's name not among them, and fills in what depends on the day `oggi`.
/// Throws HostError with exit code 1 and a sentence that names the wrong argument.
OpzioniHost leggiOpzioni(std::span<const std::string_view> argomenti, Data oggi);

} // namespace planner
