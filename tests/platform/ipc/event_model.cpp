// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_model.h"

#include <algorithm>
#include <cerrno>

namespace planner::ipctest {

bool EventModel::isLeftWithASignal(const Process& process) {
    return process.met && process.opened && process.opened->retired && process.opened->leftByOwner;
}

void EventModel::open(Process& process, bool make) {
    if (process.opened && !process.opened->retired) {
        return;
    }
    process.met = false;
    if (!m_object && make) {
        m_object = std::make_shared<Object>();
    }
    process.opened = m_object;
    if (m_object && !m_owner && !m_object->lastOf) {
        m_object->pendingToHost = false; // nobody's any more
    }
}

void EventModel::retire() {
    if (m_object) {
        m_object->retired = true;
        m_object.reset();
    }
}

void EventModel::reopenWaiting() {
    for (Process& process : m_processes) {
        if (process.waiting && process.opened->retired && !isLeftWithASignal(process)) {
            open(process, true);
        }
        if (process.waiting && m_owner) {
            process.met = true;
        }
    }
}

EventModel::Result EventModel::refuse(Process& process, int error) {
    process.refusal = error;
    return {0, error};
}

EventModel::Result EventModel::create(std::size_t who) {
    Process& process = m_processes.at(who);
    if (m_owner) {
        return m_owner == who ? Result{1, 0} : refuse(process, EADDRINUSE);
    }
    if (process.opened || (m_object && m_object->lastOf)) {
        retire();
    }
    if (!m_object) {
        m_object = std::make_shared<Object>();
    }
    *m_object = {};
    process = {};
    m_owner = who;
    reopenWaiting();
    return {1, 0};
}

EventModel::Result EventModel::set(std::size_t who) {
    Process& process = m_processes.at(who);
    if (process.refusal != 0) {
        return {0, process.refusal};
    }
    if (m_owner == who) {
        m_object->pendingToHost = true;
        return {1, 0};
    }
    open(process, false);
    if (!m_owner) {
        return {0, ESRCH};
    }
    process.met = true;
    m_object->pendingToOwner = true;
    return {1, 0};
}

EventModel::Result EventModel::remove(std::size_t who) {
    m_processes.at(who).refusal = 0;
    if (m_owner != who) {
        return {0, EPERM};
    }
    m_owner.reset();
    m_object->leftByOwner = m_object->pendingToOwner;
    if (m_object->pendingToHost) {
        m_object->lastOf = who;
    } else {
        retire();
    }
    reopenWaiting();
    return {1, 0};
}

std::optional<EventModel::Result> EventModel::wait(std::size_t who) {
    Process& process = m_processes.at(who);
    if (process.refusal != 0) {
        return Result{0, process.refusal};
    }
    if (m_owner == who) {
        process.waiting = !m_object->pendingToOwner;
        m_object->pendingToOwner = false;
        return process.waiting ? std::nullopt : std::optional(Result{1, 0});
    }
    if (isLeftWithASignal(process)) {
        leftSignalTold(who);
        return Result{0, EOWNERDEAD};
    }
    open(process, true);
    if (m_object->pendingToHost && m_object->lastOf != who) {
        released(who);
        return Result{1, 0};
    }
    if (!m_owner && process.met) {
        process.met = false;
        return Result{0, EOWNERDEAD};
    }
    process.waiting = true;
    process.met = m_owner.has_value();
    return std::nullopt;
}

void EventModel::kill(std::size_t who) {
    m_processes.at(who) = {};
    if (m_object && m_object->lastOf == who) {
        m_object->lastOf = PROCESSES; // none of those that live
    }
    if (m_owner != who) {
        return;
    }
    m_owner.reset();
    m_deathToTell = !waitingHosts().empty();
}

std::vector<std::size_t> EventModel::waitingHosts() const {
    std::vector<std::size_t> hosts;
    for (std::size_t who = 0; who < PROCESSES; ++who) {
        if (isWaiting(who) && !isOwner(who)) {
            hosts.push_back(who);
        }
    }
    return hosts;
}

std::vector<std::size_t> EventModel::hostsLeftWithASignal() const {
    std::vector<std::size_t> hosts = waitingHosts();
    std::erase_if(hosts, [this](std::size_t who) { return !isLeftWithASignal(m_processes.at(who)); });
    return hosts;
}

bool EventModel::releasesOneHost() const {
    const std::vector<std::size_t> hosts = waitingHosts();
    return m_object && m_object->pendingToHost &&
           std::any_of(hosts.begin(), hosts.end(),
                       [this](std::size_t who) { return m_object->lastOf != who; });
}

bool EventModel::releasesOwner() const {
    return m_owner && isWaiting(*m_owner) && m_object->pendingToOwner;
}

void EventModel::released(std::size_t who) {
    Process& process = m_processes.at(who);
    process.waiting = false;
    if (m_owner == who) {
        m_object->pendingToOwner = false;
        return;
    }
    process.met = true;
    m_object->pendingToHost = false;
    if (m_object->lastOf) {
        process = {};
        retire();
        reopenWaiting();
    }
}

void EventModel::deathTold() {
    for (const std::size_t who : waitingHosts()) {
        m_processes.at(who).waiting = false;
        m_processes.at(who).met = false;
    }
    m_deathToTell = false;
}

void EventModel::leftSignalTold(std::size_t who) {
    Process& process = m_processes.at(who);
    process.opened->leftByOwner = false;
    process.met = false;
    process.waiting = false;
    reopenWaiting();
}

} // namespace planner::ipctest
