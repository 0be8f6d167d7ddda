// The examples made of subdesigns, as one file and as a file for each design.

#include "example_test.h"

#include <algorithm>
#include <bit>

namespace {

using namespace example_test;

example multiplier(int width)
{
    return {"array_multiplier",
            "WIDTH=" + std::to_string(width),
            {{"a", width}, {"b", width}},
            {{"product", 2 * width}},
            [](vector_of_pins const & in) {
                return vector_of_pins{{"product", in.at("a") * in.at("b")}};
            }};
}

example sorter(int count, int width)
{
    return {"sorting_network",
            "COUNT=" + std::to_string(count) + ",WIDTH=" + std::to_string(width),
            {{"numbers", count * width}},
            {{"sorted", count * width}},
            [=](vector_of_pins const & in) {
                std::vector<std::uint64_t> numbers;
                for (int i = 0; i < count; ++i)
                    numbers.push_back((in.at("numbers") >> (i * width)) & mask(width));
                std::sort(numbers.begin(), numbers.end());
                std::uint64_t sorted = 0;
                for (int i = 0; i < count; ++i)
                    sorted |= numbers[static_cast<std::size_t>(i)] << (i * width);
                return vector_of_pins{{"sorted", sorted}};
            }};
}

example select_adder(int width, int block)
{
    return {"carry_select_adder",
            "WIDTH=" + std::to_string(width) + ",BLOCK=" + std::to_string(block),
            {{"a", width}, {"b", width}, {"cin", 1}},
            {{"sum", width}, {"cout", 1}},
            [width](vector_of_pins const & in) {
                std::uint64_t const total = in.at("a") + in.at("b") + in.at("cin");
                return vector_of_pins{{"sum", total & mask(width)}, {"cout", total >> width & 1U}};
            }};
}

example counter(int width)
{
    return {"population_counter",
            "WIDTH=" + std::to_string(width),
            {{"data", width}},
            {{"count", static_cast<int>(std::bit_width(static_cast<unsigned>(width)))}},
            [](vector_of_pins const & in) {
                return vector_of_pins{{"count", static_cast<std::uint64_t>(std::popcount(in.at("data")))}};
            }};
}

example crossbar(int select_width, int outputs, int width)
{
    int const inputs = 1 << select_width;
    return {"crossbar",
            "SELECT_WIDTH=" + std::to_string(select_width) + ",OUTPUTS=" + std::to_string(outputs)
                + ",WIDTH=" + std::to_string(width),
            {{"words", inputs * width}, {"selection", outputs * select_width}},
            {{"results", outputs * width}},
            [=](vector_of_pins const & in) {
                std::uint64_t results = 0;
                for (int output = 0; output < outputs; ++output) {
                    auto const input =
                        static_cast<int>((in.at("selection") >> (output * select_width)) & mask(select_width));
                    results |= ((in.at("words") >> (input * width)) & mask(width)) << (output * width);
                }
                return vector_of_pins{{"results", results}};
            }};
}

class HierarchicalExamples : public in_folder_with_parameter<example>
{
};

TEST_P(HierarchicalExamples, SimulateAsOneFile)
{
    SKIP_WITHOUT("iverilog");
    generate_cleanly(GetParam());
    EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
    simulate_like_the_model(GetParam(), GetParam().name + ".v");
}

TEST_P(HierarchicalExamples, SimulateAsAFileForEachDesign)
{
    SKIP_WITHOUT("iverilog");
    generate_cleanly(GetParam(), ",LBX_SINGLE_OUTPUT_FILE=OFF");
    std::string files;
    for (auto const & entry : fs::directory_iterator("."))
        files += entry.path().filename().string() + " ";
    EXPECT_NE(files, GetParam().name + ".v ");
    simulate_like_the_model(GetParam(), files);
}

TEST_P(HierarchicalExamples, SimulateInVhdlAsOneFile)
{
    SKIP_WITHOUT("ghdl");
    generate_cleanly(GetParam(), "", ".vhd");
    EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
    simulate_vhdl_like_the_model(GetParam());
}

TEST_P(HierarchicalExamples, SimulateInVhdlAsAFileForEachDesign)
{
    SKIP_WITHOUT("ghdl");
    generate_cleanly(GetParam(), ",LBX_SINGLE_OUTPUT_FILE=OFF", ".vhd");
    EXPECT_NE(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
    simulate_vhdl_like_the_model(GetParam());
}

TEST_P(HierarchicalExamples, SimulateInQhdl)
{
    SKIP_WITHOUT("iverilog");
    generate_cleanly(GetParam(), "", ".tdf");
    EXPECT_NE(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
    simulate_qhdl_like_the_model(GetParam());
}

TEST_P(HierarchicalExamples, AreCleanForTheLinter)
{
    SKIP_WITHOUT("verilator");
    generate_cleanly(GetParam());
    EXPECT_EQ(linted(GetParam(), GetParam().name + ".v"), "");
}

INSTANTIATE_TEST_SUITE_P(Examples, HierarchicalExamples,
                         ::testing::Values(multiplier(2), multiplier(4), multiplier(6), multiplier(16), sorter(2, 1),
                                           sorter(3, 4), sorter(4, 3), sorter(7, 8), select_adder(4, 2),
                                           select_adder(5, 3), select_adder(32, 5), counter(2), counter(7), counter(12),
                                           counter(29), crossbar(1, 2, 1), crossbar(1, 2, 4), crossbar(2, 3, 5)));

} // namespace
