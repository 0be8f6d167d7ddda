// Whole runs of designs of several levels: what goes to which file, and under which names.

#include "golden_designs.h"
#include "golden_folder.h"

using namespace gnl_test;

namespace {

using GoldenHierarchies = in_folder;

/// A design that can tell that it is not supported.
class box : public design
{
public:
    using design::design;
    using GNL_GENERATOR::set_not_supported;
};

std::unique_ptr<design> made_top(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("d", 4);
    top->output("q", 4);
    return top;
}

/// A row of stages from the port `d` of `level` to its port `q`, one for each value of `held`.
void row_of_stages(design & level, std::vector<int> const & held)
{
    GNL_PORT * previous = &level.port("d");
    int number = 0;
    for (int const value : held) {
        auto & made = stage(level, "s" + std::to_string(++number), 4, value);
        made.port("d") = *previous;
        made.port("en") = 1;
        previous = &made.port("q");
    }
    level.port("q") = *previous;
}

/// A level between: two stages, of which the second has the settings of the first one of the next such level.
design & pair_of_stages(design & parent, std::string const & instance, int held)
{
    auto & made = parent.child("pair", instance);
    made.input("d", 4);
    made.output("q", 4);
    made.integer("HELD", 0) = held;
    made.body = [](design & of) {
        int const first = of.parameter_integer("HELD").get_value();
        row_of_stages(of, {first, first + 1});
    };
    return made;
}

/// Two pairs in a row: five designs in three levels, as one stage serves both pairs.
std::unique_ptr<design> three_levels(std::string const & options)
{
    auto top = made_top(options);
    top->body = [](design & of) {
        auto & first = pair_of_stages(of, "p1", 1);
        auto & second = pair_of_stages(of, "p2", 2);
        first.port("d") = of.port("d");
        second.port("d") = first.port("q");
        of.port("q") = second.port("q");
    };
    return top;
}

/// Two levels, with a stage for each value.
std::unique_ptr<design> two_levels(std::string const & options, std::vector<int> const & held)
{
    auto top = made_top(options);
    top->body = [held](design & of) { row_of_stages(of, held); };
    return top;
}

/// Cells of which the headers "masks K=12 d q" and "masks K=21 d q" have one sum of characters; the sum of
/// "masks K=13 d q" is the next number, which the second of them has to take.
std::unique_ptr<design> equal_sums(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("d", 5);
    top->output("q", 5);
    top->body = [](design & of) {
        GNL_PORT * previous = &of.port("d");
        int number = 0;
        for (int const value : {12, 21, 13}) {
            auto & cell = of.child("masks", "m" + std::to_string(++number));
            auto & in = cell.input("d", 5);
            auto & out = cell.output("q", 5);
            cell.integer("K") = value;
            cell.body = [](design & own) {
                auto & mask = own.wire("mask", 5);
                mask = own.parameter_integer("K").get_value();
                own.port("q") = own.port("d") ^ mask;
            };
            in = *previous;
            previous = &out;
        }
        of.port("q") = *previous;
    };
    return top;
}

} // namespace

TEST_F(GoldenHierarchies, ThreeLevelsInOneFile)
{
    EXPECT_GOLDEN_THAT_COMPILES(*three_levels("LBX_FILE=top.v"), "three_levels.v");
}

TEST_F(GoldenHierarchies, ThreeLevelsInFilesOfTheirOwn)
{
    EXPECT_GOLDEN_THAT_COMPILES(*three_levels("LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF"), "three_levels_own_files.v");
}

TEST_F(GoldenHierarchies, AStreamOfTheCallerTakesTheWholeRun)
{
    auto const top = two_levels("LBX_FILE=top.v", {1, 2});
    top->set_use_external_ostream();
    EXPECT_TRUE(leaves_golden(*top, "external_stream.v"));
}

TEST_F(GoldenHierarchies, TheTextOfAStreamCompiles)
{
    SKIP_WITHOUT("iverilog");
    auto const top = two_levels("LBX_FILE=top.v", {1, 2});
    top->set_use_external_ostream();
    std::ofstream("stream.v") << top->run();
    EXPECT_EQ(complaints_of_compiler(), "");
}

TEST_F(GoldenHierarchies, AppendedToWhatIsThere)
{
    std::ofstream("both.v") << "module other;\nendmodule\n";
    EXPECT_TRUE(leaves_golden(*two_levels("LBX_FILE=both.v:a:top", {1, 1, 2}), "appended.v"));
    SKIP_WITHOUT("iverilog");
    EXPECT_EQ(complaints_of_compiler(), "");
}

TEST_F(GoldenHierarchies, EqualSumsOfCharactersDoNotCollideInOneFile)
{
    EXPECT_GOLDEN_THAT_COMPILES(*equal_sums("LBX_FILE=top.v"), "equal_sums.v");
}

TEST_F(GoldenHierarchies, EqualSumsOfCharactersDoNotCollideInFilesOfTheirOwn)
{
    EXPECT_GOLDEN_THAT_COMPILES(*equal_sums("LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF"), "equal_sums_own_files.v");
}

/// A name is avoided whatever the language of the file in the second folder.
TEST_F(GoldenHierarchies, NamesOfASecondFolderAreAvoided)
{
    fs::create_directory("out");
    fs::create_directory("taken");
    std::ofstream("taken/mgpa4.tdf") << "-- the first stage would have this name\n";
    std::ofstream("taken/mgqa4.vhd") << "-- the second one, or the first with the next number\n";
    EXPECT_GOLDEN_THAT_COMPILES(
        *two_levels("LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF,LBX_OUTPUT_DIRECTORY=out;taken", {1, 2}),
        "second_folder.v");
}

TEST_F(GoldenHierarchies, FixedPrefixInOneFile)
{
    EXPECT_GOLDEN_THAT_COMPILES(
        *two_levels("LBX_FILE=top.v,LBX_MODULE_PREFIX=pre,LBXI_INSTANCE_NAME=inst", {1, 2, 1, 3}), "fixed_prefix.v");
}

TEST_F(GoldenHierarchies, FixedPrefixInFilesOfTheirOwn)
{
    EXPECT_GOLDEN_THAT_COMPILES(*two_levels("LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF,LBX_MODULE_PREFIX=pre,"
                                            "LBXI_INSTANCE_NAME=inst",
                                            {1, 2, 1, 3}),
                                "fixed_prefix_own_files.v");
}

/// It stands as a box of its own name; its model comes from elsewhere.
TEST_F(GoldenHierarchies, AChildThatIsNotSupported)
{
    auto const top = made_top("LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF");
    top->body = [](design & of) {
        auto & made = *new box(&of, "box");
        made.set_instance_name("u1");
        auto & in = made.input("d", 4);
        auto & out = made.output("q", 4);
        made.integer("DEPTH", 2) = 3;
        made.body = [&made](design & own) {
            own.port("q") = own.port("d");
            made.set_not_supported();
        };
        auto & last = stage(of, "u2", 4, 1);
        in = of.port("d");
        last.port("d") = out;
        of.port("q") = last.port("q");
    };
    EXPECT_TRUE(leaves_golden(*top, "not_supported.v"));
    EXPECT_EQ(top->generator_result(), 3);
    SKIP_WITHOUT("iverilog");
    std::ofstream("box.v") << "module box(d, q);\n"
                              "\tparameter depth = 1;\n"
                              "\tparameter lpm_type = \"box\";\n"
                              "\tinput [3:0] d;\n"
                              "\toutput [3:0] q;\n"
                              "\tassign q = d;\n"
                              "endmodule\n";
    EXPECT_EQ(complaints_of_compiler(), "");
}

TEST_F(GoldenHierarchies, AChildWithoutARequiredPort)
{
    auto const top = made_top("LBX_FILE=top.v");
    top->body = [](design & of) {
        auto & last = stage(of, "u1", 4, 1);
        of.port("q") = last.port("q");
    };
    EXPECT_TRUE(leaves_golden(*top, "required_port.v"));
    EXPECT_EQ(top->generator_result(), 1);
    SKIP_WITHOUT("iverilog");
    std::ofstream("missing.v") << "module top_mgg61(q);\n\toutput [3:0] q;\nendmodule\n"; // it got no text
    EXPECT_EQ(complaints_of_compiler(), "");
}
