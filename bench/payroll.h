#pragma once
// A store holding one declaration of each kind with a large payroll: the lines
// of many persons, several per person (payroll months and wage types),
// numbered in reading order, every column filled as the screens store it.

#include <QString>

#include "store/kind.h"

namespace veroxia::bench {

constexpr int kPayrollId = 1;
constexpr int kPayrollLines = 100'000;
constexpr int kPayrollPersons = 30'000;

// Makes the store at path (which must not exist yet).
void MakePayrollStore(const QString& path, int lines = kPayrollLines,
                      int persons = kPayrollPersons);

// The payroll store, made once per run in a temporary directory; a benchmark
// that changes it works on its own copy.
const QString& PayrollFile();

// The kind a benchmark's first argument names: 0 common, 1 construction.
inline Kind KindOf(long long argument) { return argument == 0 ? Kind::Common : Kind::Construction; }

// Resident memory of the process, in kilobytes; 0 where it cannot be read.
long ResidentKb();

// The register number of a person of the payroll (nine digits).
QString PayrollInsuredId(int person);
// The surname of a person of the payroll: one of a few dozen common
// surnames, made distinct by a trailing letter pair.
QString PayrollSurname(int person);

}  // namespace veroxia::bench
