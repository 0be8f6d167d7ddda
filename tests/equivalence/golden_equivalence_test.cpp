// The designs with golden files mean the same in all three hardware languages.

#include "proof_test.h"
#include "writers/golden_array_designs.h"
#include "writers/golden_cell_designs.h"
#include "writers/golden_file_designs.h"
#include "writers/golden_hierarchy_designs.h"

using namespace gnl_test;
using lbx_proof::design_text;
using lbx_proof::question;
using language = lbx_proof::design_text::language;

namespace {

class GoldenEquivalence : public proof_test
{
protected:
    /// The files of one design in one language, in a folder of their own.
    static design_text text(golden_design const & of, file_language const & in)
    {
        auto const folder = fs::path(std::string(of.name) + in.name);
        fs::create_directory(folder);
        auto const top = of.make("LBX_OUTPUT_DIRECTORY=" + folder.string() + ",LBX_FILE=top" + in.ending + of.options);
        top->run();
        EXPECT_EQ(top->messages(), texts{}) << of.name << in.ending;
        if (in.ending == ".tdf") {
            qhdl::reader designs;
            add_cells(designs, of.cell);
            designs.add_folder(folder);
            std::ofstream(folder / "translated.v") << designs.verilog() << of.cell.verilog;
        } else if (auto const & model = in.ending == ".v" ? of.cell.verilog : of.cell.vhdl; !model.empty()) {
            std::ofstream(folder / ("outside" + in.ending)) << model;
        }
        if (in.ending == ".vhd")
            return {language::vhdl, files_with(folder, ".vhd"), "top"};
        return {language::verilog, files_with(folder, ".v"), "top"};
    }

    static std::vector<question> questions_of(std::vector<golden_design> const & designs)
    {
        std::vector<question> questions;
        for (auto const & of : designs) {
            if (of.unproven != nullptr)
                continue;
            auto const verilog = text(of, file_languages[0]);
            for (auto const & in : {file_languages[1], file_languages[2]})
                questions.push_back({of.name + in.ending, verilog, text(of, in)});
        }
        return questions;
    }
};

} // namespace

TEST_F(GoldenEquivalence, OfHierarchies)
{
    expect_equal(questions_of({std::begin(golden_hierarchies), std::end(golden_hierarchies)}));
}

TEST_F(GoldenEquivalence, OfArrays)
{
    expect_equal(questions_of({std::begin(golden_arrays), std::end(golden_arrays)}));
}

TEST_F(GoldenEquivalence, OfBoxesGatesAndParametersFromAbove)
{
    expect_equal(questions_of({std::begin(golden_files), std::end(golden_files)}));
}

TEST_F(GoldenEquivalence, OfCells)
{
    expect_equal(questions_of({std::begin(golden_cells), std::end(golden_cells)}));
}
