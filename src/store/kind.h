#pragma once
// The two kinds of declaration and the tables each keeps.

namespace veroxia {

enum class Kind { Common, Construction };

struct KindTables {
  const char* header;   // one row per declaration
  const char* lines;    // employee lines, many per declaration
  const char* scratch;  // same columns as lines; empty between operations
  const char* order;    // reading order of the lines
};

constexpr KindTables TablesOf(Kind kind) {
  return kind == Kind::Common
             ? KindTables{"QOR_EMPLOYERS", "QOR_EMPLOYEES", "QOR_TEMP_EMPLOYEES",
                          "insured_id, surname, sal_month, wage_code"}
             : KindTables{"QOR_CON_EMPLOYERS", "QOR_CON_EMPLOYEES", "QOR_CON_TEMP_EMPLOYEES",
                          "insured_id, surname, wage_code"};
}

}  // namespace veroxia
