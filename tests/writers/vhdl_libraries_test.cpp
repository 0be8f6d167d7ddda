#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlLibraries = vhdl_sections;

signal_names library_list(std::string const & text)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.set_vhdl_library(text, true);
    return cell.get_vhdl_library_list();
}

/// The clauses in front of a design with cells that come from these libraries.
std::string clauses(std::vector<std::string> const & libraries)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.run([&](design & self) {
        int number = 0;
        for (auto const & library : libraries) {
            auto & cell = self.child("cell" + std::to_string(number), "u" + std::to_string(number));
            cell.set_primitive();
            cell.set_vhdl_library(library, true);
            ++number;
        }
    });
    auto const text = file_text("top.vhd");
    auto const start = text.find("\n\n ");
    auto const end = text.find("--synthesis_resources");
    return start < end ? text.substr(start + 1, end - start - 1) : text.substr(end - 1, 1);
}

} // namespace

TEST_F(VhdlLibraries, AreThePiecesOfTheText)
{
    EXPECT_EQ(library_list(""), signal_names{});
    EXPECT_EQ(library_list("lpm.lpm_components"), (signal_names{{"lpm.lpm_components", "lpm.lpm_components"}}));
    EXPECT_EQ(library_list("one.a;;two.b;"), (signal_names{{"one.a", "one.a"}, {"two.b", "two.b"}}));
}

TEST_F(VhdlLibraries, TwoPackagesOfOneLibraryAreTwo)
{
    EXPECT_EQ(library_list("one.b;one.a;ONE.B"), (signal_names{{"one.a", "one.a"}, {"one.b", "one.b"}}));
}

TEST_F(VhdlLibraries, AnEntryIsNotAddedTwice)
{
    top_design top;
    signal_names list{{"one.a", "one.a"}};
    top.add_to_vhdl_library_list(list, "ONE.A", false);
    top.add_to_vhdl_library_list(list, "two.a", true);
    top.add_to_vhdl_library_list(list, "", false);
    EXPECT_EQ(list, (signal_names{{"one.a", "one.a"}, {"two.a", "two.a"}}));
}

TEST_F(VhdlLibraries, HaveAClauseEach)
{
    EXPECT_EQ(clauses({"two.b", "one.b;one.a", "Two.B", "work.cells"}), "\n"
                                                                        " LIBRARY one;\n"
                                                                        " USE one.a.all;\n"
                                                                        "\n"
                                                                        " LIBRARY one;\n"
                                                                        " USE one.b.all;\n"
                                                                        "\n"
                                                                        " LIBRARY two;\n"
                                                                        " USE two.b.all;\n"
                                                                        "\n"
                                                                        " USE work.cells.all;\n"
                                                                        "\n");
}

TEST_F(VhdlLibraries, AReusedDesignHasNoClauses)
{
    auto const generated = [] {
        design top(nullptr, "top", "LBX_FILE=top.vhd");
        return top.run([](design & self) {
            auto & leaf = self.child("leaf", "u");
            leaf.body = [](design & of) {
                auto & cell = of.child("cell", "v");
                cell.set_primitive();
                cell.set_vhdl_library("one.a", true);
            };
            auto & other = self.child("leaf", "w");
            other.body = leaf.body;
        });
    };
    generated();
    auto const text = file_text("top.vhd");
    auto const first = text.find(" LIBRARY one;\n");
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(text.find(" LIBRARY one;\n", first + 1), std::string::npos);
}
