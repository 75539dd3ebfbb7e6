#pragma once
// The program's font: one with Greek letters, the same on every machine.

namespace veroxia {

// DejaVu Sans when the machine has it; the toolkit's default otherwise.
void UseProgramFont();

}  // namespace veroxia
