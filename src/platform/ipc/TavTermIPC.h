// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// Named events between the planner and the program that starts it (the host).
//
// An event lives under its name, apart for each user, and has two sides: the process that created
// it (the planner) and every other process (the host). A signal by one side releases one wait of
// the other side; a signal before the wait is kept, at most one at a time; no side takes its own.
//
// `nome` is any string of bytes, the empty one included. Its file name must fit: a name of up to
// 84 bytes always does, one of up to 252 bytes does when it has no '/', no '%' and no control
// byte (each of those counts as three).
//
// Every call returns 1 when it is done. When it failed it returns 0 and sets errno:
//
//   EINVAL        every call           `nome` is null
//   ENAMETOOLONG  every call           `nome` is too long
//   EADDRINUSE    creation             another living process has created the event
//                 signal, wait         this process wanted to create it and was refused
//   ESRCH         signal               there is no living creator to receive it
//   EOWNERDEAD    wait                 the event's creator has died without removing it
//   ECANCELED     wait                 this process has removed the event
//   EIDRM         signal, wait         this process's own event was spoilt: its file was cut short, or
//                                      marked as removed
//   EPERM         removal              this process has not created the event
//   EACCES        every call but the   the folder of events, or the one that XDG_RUNTIME_DIR names, is
//                 removal              not the user's own, or open to others
//   any other     every call but the   what the system said: no descriptors left (EMFILE), the disk is
//                 removal              full (ENOSPC), a folder stands in the event's place (EISDIR) ...
//
// All of them may be called from any thread. After fork() the child starts anew: of what its parent
// has created it is the other side.

#ifdef __cplusplus
extern "C" {
#endif

// Creates the event, without any signal pending, and makes this process its creator. What a creator
// left that died, and a last signal that nobody has taken, are dropped. Done as well, and without
// any change, when this process has created it already. After a failure this process has no part in
// the event: its signals and waits fail with the same errno, until its creation succeeds or it calls
// the removal.
int TvIpcCreazioneEvento(const char* nome);

// Signals the other side. Never blocks; a signal that is pending already stays the only one. Fails,
// for a process other than the creator, while there is no living creator to receive it.
int TvIpcSetEvento(const char* nome);

// Blocks, without a time limit and without using the processor, until the other side signals, and
// takes that signal. Where nobody has created the event yet, waits for that too, and after a removal
// for the next creation.
//
// The host is told within a second, once, of the death of a creator that it has met: in this wait, or by
// an earlier signal or wait. What that creator signalled before is taken first. Another one that has
// taken the name over meanwhile is as good: the wait goes on with it.
//
// The creator's wait that is under way when another thread removes the event returns 1 if the host's
// signal came before the removal, else 0.
int TvIpcWaitEvento(const char* nome);

// Removes the event; only its creator can. A signal that the other side has not taken yet is kept
// for it, also after this process has ended.
int TvIpcRimozioneEvento(const char* nome);

#ifdef __cplusplus
}
#endif
