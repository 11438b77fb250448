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
// byte (each of those counts as three). A null pointer or a longer name makes every call fail.
//
// Every call returns 1 when it is done and 0 when it failed. All of them may be called from any
// thread. After fork() the child of a creator belongs to the other side.

#ifdef __cplusplus
extern "C" {
#endif

// Creates the event, without any signal pending, and makes this process its creator. What a creator
// left that died, and a last signal that nobody has taken, are dropped. Done as well, and without
// any change, when this process has created it already; fails while another process has it.
int TvIpcCreazioneEvento(const char* nome);

// Signals the other side. Never blocks; a signal that is pending already stays the only one. Fails,
// for a process other than the creator, while there is no living creator to receive it.
int TvIpcSetEvento(const char* nome);

// Blocks, without a time limit and without using the processor, until the other side signals, and
// takes that signal. Where nobody has created the event yet, waits for that too; a wait also
// outlives the creator and goes on with the next one. Fails only when this process removes the
// event meanwhile, or when the system refuses (folder not private, no descriptors left).
int TvIpcWaitEvento(const char* nome);

// Removes the event; only its creator can. A signal that the other side has not taken yet is kept
// for it, also after this process has ended.
int TvIpcRimozioneEvento(const char* nome);

#ifdef __cplusplus
}
#endif
