#pragma once

// One design and what it writes in each language.

#include "open_design.h"

#include <functional>
#include <string>
#include <utility>

namespace gnl_test {

struct language_texts
{
    char const * verilog;
    char const * vhdl;
    char const * qhdl;
};

/// Runs `text` in each language, without messages; Tcl writes what QHDL writes.
inline void expect_language_texts(language_texts const & expected,
                                  std::function<std::string(open_design &)> const & text)
{
    std::pair<int, char const *> const rows[] = {{GNL_VERILOG, expected.verilog},
                                                 {GNL_VHDL, expected.vhdl},
                                                 {GNL_QHDL, expected.qhdl},
                                                 {GNL_TCL, expected.qhdl}};
    for (auto const & [language, wanted] : rows) {
        open_design top(language);
        EXPECT_EQ(text(top), wanted) << "language " << language;
        EXPECT_EQ(top.messages(), texts{}) << "language " << language;
    }
}

} // namespace gnl_test
