// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "core/forms/plcal/plcal_fixture.h"
#include "fuzz/fuzz_input.h"

namespace planner::test {

/// What a user can do in the windows; each is one byte of the input, followed by one or two for the place.
enum class Azione : std::uint8_t {
    selezionaCella,  // row, column
    cliccaCella,     // row, column
    muoveConTasto,   // row, column
    scegliGiorno,    // distance from the shown day
    pulsantePeriodo, // which of `PulsantiPeriodo`
    indicePeriodo,   // index of all three groups of period buttons
    toolbar,         // which of `PulsantiToolbar`; the one after the last has no command
    elencoToolbar,   // position on the staff list's toolbar
    elencoFreccia,   // which arrow of the staff list
    elencoSeleziona, // row of the staff list
    elencoSpunta,    // row of the staff list
    elencoCerca,     // the text, as a part
    sceltaImpegno,   // what will be chosen in the appointment-type dialog
};
inline constexpr int NumeroGesti = 13;

/// Cells and rows are counted from this one, so that some lie outside.
inline constexpr int PrimaCoordinata = -2;

/// The planner window with a user who does what the input says, and presses Escape at its end.
class FuzzedUser : public PlcalFixture {
public:
    /// One gesture, and what holds after each.
    void act(FuzzInput& input);

    /// Closes the window, which ends the session.
    void leave();

private:
    void TestBody() override {}
    void perform(Azione azione, FuzzInput& input);
    void performInGrid(Azione azione, FuzzInput& input);
    void performInStaffList(Azione azione, FuzzInput& input);
    void choosePeriod(int indice);
    void requireSoundState();
};

} // namespace planner::test
