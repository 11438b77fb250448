// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/motore.h"
#include "forms/plcal/design.h"
#include "forms/plcal/vista_plcal.h"
#include "forms/plfcollab/vista_plfcollab.h"
#include "forms/plfgraf/plfgraf.h"
#include "forms/plfimp/plfimp.h"
#include "ports/clock.h"
#include "ports/collation.h"
#include "ports/event_pump.h"
#include "ports/host_ipc.h"
#include "ports/message_boxes.h"
#include "ports/periodic_timer.h"
#include "ports/planner_window.h"
#include "session/dates.h"

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace planner::test {

/// What happened in a test, across all its fakes, in order.
using Journal = std::vector<std::string>;

/// Something that the user or the host does when its turn comes.
using Action = std::function<void()>;

/// Thrown where the planner would wait for ever.
struct ScriptEnded : std::logic_error {
    using std::logic_error::logic_error;
};

class RecordingMessages : public MessageBoxes {
public:
    explicit RecordingMessages(Journal& journal) : m_journal(journal) {}
    void show(const Message& message) override;
    bool askToRetry(const Message& message) override;

    std::vector<Message> shown;
    Action onShow;              // what happens in each of them
    std::deque<Action> retries; // the user presses "Riprova" as often, each time after this, then "Annulla"

private:
    Journal& m_journal;
};

class FakeWindow : public PlannerWindow {
public:
    explicit FakeWindow(Journal& journal) : m_journal(journal) {}
    bool isLoaded() const override { return m_loaded; }
    void load() override;
    void show() override { m_journal.push_back("show"); }
    void bringToFront() override { m_journal.push_back("bring to front"); }
    void unload() override;
    void hide() override { m_journal.push_back("hide"); }

private:
    Journal& m_journal;
    bool m_loaded = false;
};

/// Each wait for events runs the next action of the user. Throws ScriptEnded when none is left.
class ScriptedPump : public EventPump {
public:
    explicit ScriptedPump(Journal& journal) : m_journal(journal) {}
    void waitAndProcess() override;
    void processFor(std::chrono::milliseconds time) override;
    void wakeUp() override {}
    void flush() override { m_journal.push_back("flush"); }

    std::deque<Action> actions;
    std::vector<std::chrono::milliseconds> pauses;
    Action onPause; // what happens in each of them

private:
    Journal& m_journal;
};

class FixedClock : public Clock {
public:
    explicit FixedClock(Data today) : m_today(today) {}
    Data today() const override { return m_today; }
    void setToday(Data today) { m_today = today; }

private:
    Data m_today;
};

/// Each wait for the host runs the host's next action. Throws ScriptEnded when none is left. A call of which
/// `troubles` has some left fails with the next one.
class RecordingIpc : public HostIpc {
public:
    explicit RecordingIpc(Journal& journal) : m_journal(journal) {}
    EsitoEvento TvIpcCreazioneEvento(const std::string& nome) override { return note("create", nome); }
    EsitoEvento TvIpcSetEvento(const std::string& nome) override { return note("signal", nome); }
    EsitoEvento TvIpcWaitEvento(const std::string& nome) override;
    EsitoEvento TvIpcRimozioneEvento(const std::string& nome) override { return note("remove", nome); }
    bool interrompiAttesa(const std::string& nome) override;
    bool rispostaPresa() const override { return answerTaken; }
    bool ospiteVivo() const override { return hostAlive; }

    std::deque<Action> hostActions;
    std::map<std::string, std::deque<GuaioEvento>> troubles; // by "create", "signal", "wait", "remove"
    bool signalledBeforeRemoval = false;
    bool answerTaken = true;
    bool hostAlive = true;

private:
    EsitoEvento note(const std::string& call, const std::string& nome);

    Journal& m_journal;
};

class RecordingTimer : public PeriodicTimer {
public:
    explicit RecordingTimer(Journal& journal) : m_journal(journal) {}
    void setEnabled(bool on) override {
        enabled = on;
        m_journal.push_back(on ? "timer on" : "timer off");
    }

    bool enabled = false;

private:
    Journal& m_journal;
};

/// What a call of WPlanner passed on, and what it answers.
struct WPlannerCall {
    std::string tipoplanner, startdate, enddate, PathArchivi, tipocall, collab, valret, Windowcaption,
        planrichiesto;
};

/// An engine whose user answers at once; `serve` may change the in/out texts and may throw.
class FakeMotore : public Motore {
public:
    using Serve = std::function<void(WPlannerCall&)>;

    FakeMotore(Journal& journal, Serve serve) : m_journal(journal), m_serve(std::move(serve)) {
        m_journal.push_back("engine made");
    }
    ~FakeMotore() override { m_journal.push_back("engine released"); }

    void WPlanner(std::string& tipoplanner, const std::string& startdate, const std::string& enddate,
                  const std::string& PathArchivi, const std::string& tipocall, std::string& collab,
                  std::string& valret, std::string& Windowcaption, std::string& planrichiesto) override;
    void chiusura(std::string& collab, std::string& valret) const override;

private:
    Journal& m_journal;
    Serve m_serve;
};

/// The planner window's widgets: they note what they are told.
class FakeVista : public VistaPlcal {
public:
    explicit FakeVista(Journal& journal) : m_journal(journal) {}
    Dimensioni schermo() const override { return screen; }
    void disponi(const std::vector<ControlloProgetto>& controlli, const Scala& scala) override;
    void aggiorna() override { m_journal.push_back("update"); }
    void disponiPulsantiPeriodo() override { m_journal.push_back("place period buttons"); }
    void scorriA(int colonna) override { m_journal.push_back("scroll to " + std::to_string(colonna)); }
    int primaColonnaInVista() const override { return firstColumn; }
    void scorriAlCursore() override { m_journal.push_back("scroll to the cursor"); }
    void apriCampo(const DescrizioneCampo& campo, const std::string& testo) override {
        m_journal.push_back("ask " + std::string(campo.nome) + " [" + testo + "]");
    }
    void portaCursoreInVista() override { m_journal.push_back("cursor in sight"); }
    void rinvia(Action azione) override { azione(); }
    void mostra() override { m_journal.push_back("show"); }
    void nascondi() override { m_journal.push_back("hide"); }
    void portaDavanti() override { m_journal.push_back("bring to front"); }
    void LockWindowUpdate(bool locked) override { m_journal.push_back(locked ? "lock" : "unlock"); }
    void mostraInformazioni() override { m_journal.push_back("information"); }
    void mostraGuida() override { m_journal.push_back("guide"); }
    void annuncia(const std::string& testo) override { announced.push_back(testo); }
    void annunciaConCasella(const std::string& testo) override { announced.push_back(testo); }

    std::vector<std::string> announced;

    Dimensioni screen = ProgettoPlcal;
    int firstColumn = PrimaColonnaGiornaliera;
    std::vector<ControlloProgetto> placed;
    Scala placedScale;

private:
    Journal& m_journal;
};

/// The appointment-type dialog: `user` presses its buttons, and without one closes it otherwise.
struct FakeFinestraImpegno {
    void operator()(plfimp& form) {
        ++asked;
        if (user) {
            user(form);
        }
    }

    std::function<void(plfimp&)> user;
    int asked = 0;
};

/// The chart window: keeps the charts that it was to show.
struct FakeFinestraGrafici {
    void operator()(plfgraf& form) { shown.push_back(*form.visibile()); }

    std::vector<Grafico> shown;
};

/// The staff window's widgets: a list that shows ten rows from `primaRiga` on, and a user who answers the
/// question for a text with `risposta`.
class FakeVistaPlfcollab : public VistaPlfcollab {
public:
    explicit FakeVistaPlfcollab(Journal& journal) : m_journal(journal) {}
    void mostra() override { m_journal.push_back("show staff"); }
    void nascondi() override { m_journal.push_back("hide staff"); }
    void aggiornaRighe() override { m_journal.push_back("staff rows"); }
    void aggiorna() override { m_journal.push_back("update staff"); }
    void portaInVista(int riga) override {
        m_journal.push_back("staff row in sight " + std::to_string(riga));
    }
    int primaRigaVisibile() const override { return primaRiga; }
    int righePerPagina() const override { return righe; }
    void scorriA(int riga) override { primaRiga = riga; }
    std::optional<std::string> chiediTesto(std::string_view titolo, const std::string& iniziale) override;
    void annuncia(const std::string& testo) override { announced.push_back(testo); }

    std::vector<std::string> announced;
    int primaRiga = 0;
    int righe = 10;
    std::optional<std::string> risposta;
    std::vector<std::string> offerti; // what each question offered to start from

private:
    Journal& m_journal;
};

/// Byte order and no folding but that of ASCII letters.
class PlainCollation : public Collation {
public:
    int compare(std::string_view a, std::string_view b) const override { return a.compare(b); }
    std::string folded(std::string_view text) const override;
};

} // namespace planner::test
