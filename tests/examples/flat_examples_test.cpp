// The examples without subdesigns.

#include "example_test.h"

#include <bit>

namespace {

using namespace example_test;

example adder(int width)
{
    return {"ripple_carry_adder",
            "WIDTH=" + std::to_string(width),
            {{"a", width}, {"b", width}, {"cin", 1}},
            {{"sum", width}, {"cout", 1}},
            [width](vector_of_pins const & in) {
                std::uint64_t const total = in.at("a") + in.at("b") + in.at("cin");
                return vector_of_pins{{"sum", total & mask(width)}, {"cout", total >> width & 1U}};
            }};
}

example parity(int width, bool odd)
{
    return {"parity_tree",
            "WIDTH=" + std::to_string(width) + ",PARITY=" + (odd ? "ODD" : "EVEN"),
            {{"data", width}},
            {{"parity", 1}},
            [odd](vector_of_pins const & in) {
                bool const even = std::popcount(in.at("data")) % 2 != 0;
                return vector_of_pins{{"parity", even != odd}};
            }};
}

example to_gray(int width)
{
    return {"binary_to_gray",
            "WIDTH=" + std::to_string(width),
            {{"binary", width}},
            {{"gray", width}},
            [](vector_of_pins const & in) {
                return vector_of_pins{{"gray", in.at("binary") ^ (in.at("binary") >> 1)}};
            }};
}

example from_gray(int width)
{
    return {"gray_to_binary",
            "WIDTH=" + std::to_string(width),
            {{"gray", width}},
            {{"binary", width}},
            [](vector_of_pins const & in) {
                std::uint64_t value = 0;
                for (std::uint64_t rest = in.at("gray"); rest != 0; rest >>= 1)
                    value ^= rest;
                return vector_of_pins{{"binary", value}};
            }};
}

example decoder(int width)
{
    return {"decoder",
            "ADDRESS_WIDTH=" + std::to_string(width),
            {{"address", width}, {"enable", 1}},
            {{"selected", 1 << width}},
            [](vector_of_pins const & in) {
                return vector_of_pins{{"selected", in.at("enable") << in.at("address")}};
            }};
}

example rotator(int log2_width)
{
    int const width = 1 << log2_width;
    return {"barrel_rotator",
            "LOG2_WIDTH=" + std::to_string(log2_width),
            {{"data", width}, {"amount", log2_width}},
            {{"result", width}},
            [width](vector_of_pins const & in) {
                auto const distance = static_cast<int>(in.at("amount"));
                std::uint64_t const data = in.at("data");
                std::uint64_t const low = distance == 0 ? 0 : data >> (width - distance);
                return vector_of_pins{{"result", ((data << distance) | low) & mask(width)}};
            }};
}

example crc(int width, int data_width, std::string const & polynomial, std::uint64_t value)
{
    return {"crc_step",
            "WIDTH=" + std::to_string(width) + ",DATA_WIDTH=" + std::to_string(data_width)
                + (polynomial.empty() ? "" : ",POLYNOMIAL=" + polynomial),
            {{"crc", width}, {"data", data_width}},
            {{"next_state", width}},
            [=](vector_of_pins const & in) {
                std::uint64_t state = in.at("crc");
                for (int bit = data_width - 1; bit >= 0; --bit) {
                    bool const feedback = ((state >> (width - 1)) ^ (in.at("data") >> bit)) & 1U;
                    state = (state << 1) & mask(width);
                    if (feedback)
                        state ^= value;
                }
                return vector_of_pins{{"next_state", state}};
            }};
}

example adapter(int lanes, int width)
{
    int const bits = lanes * width;
    return {"bus_adapter",
            "LANES=" + std::to_string(lanes) + ",WIDTH=" + std::to_string(width),
            {{"words", bits}, {"invert", 1}},
            {{"reversed", bits}, {"pad", 1}, {"pad_level", 1}},
            [=](vector_of_pins const & in) {
                std::uint64_t reversed = 0;
                for (int lane = 0; lane < lanes; ++lane)
                    reversed |= ((in.at("words") >> (lane * width)) & mask(width)) << ((lanes - 1 - lane) * width);
                if (in.at("invert") != 0)
                    reversed = ~reversed & mask(bits);
                std::uint64_t const parity = std::popcount(in.at("words")) & 1;
                return vector_of_pins{{"reversed", reversed}, {"pad", parity}, {"pad_level", parity}};
            }};
}

class FlatExamples : public in_folder_with_parameter<example>
{
};

TEST_P(FlatExamples, SimulateLikeTheirModel)
{
    SKIP_WITHOUT("iverilog");
    generate_cleanly(GetParam());
    simulate_like_the_model(GetParam(), GetParam().name + ".v");
}

TEST_P(FlatExamples, SimulateInVhdlLikeTheirModel)
{
    SKIP_WITHOUT("ghdl");
    generate_cleanly(GetParam(), "", ".vhd");
    simulate_vhdl_like_the_model(GetParam());
}

TEST_P(FlatExamples, SimulateInQhdl)
{
    SKIP_WITHOUT("iverilog");
    generate_cleanly(GetParam(), "", ".tdf");
    simulate_qhdl_like_the_model(GetParam());
}

TEST_P(FlatExamples, AreCleanForTheLinter)
{
    SKIP_WITHOUT("verilator");
    generate_cleanly(GetParam());
    EXPECT_EQ(linted(GetParam(), GetParam().name + ".v"), "");
}

INSTANTIATE_TEST_SUITE_P(Examples, FlatExamples,
                         ::testing::Values(adder(1), adder(4), adder(5), adder(16), adder(33), parity(1, false),
                                           parity(2, true), parity(7, false), parity(12, true), parity(40, false),
                                           to_gray(1), to_gray(2), to_gray(12), to_gray(48), from_gray(1), from_gray(2),
                                           from_gray(12), from_gray(48), decoder(1), decoder(3), decoder(6), rotator(1),
                                           rotator(3), rotator(5), crc(1, 1, "1", 1), crc(8, 4, "0x07", 0x07),
                                           crc(16, 8, "0x1021", 0x1021), crc(5, 7, "0b00101", 5),
                                           crc(32, 32, "0x04C11DB7", 0x04C11DB7), adapter(1, 2), adapter(2, 5),
                                           adapter(4, 8), adapter(7, 9)));

using ExampleErrors = in_folder;

TEST_F(ExampleErrors, AnImpossibleDecoderIsReportedAndMarkedInItsFile)
{
    auto const top = make_example("decoder", "LBX_FILE=decoder.v,ADDRESS_WIDTH=20");
    std::ostringstream stream;
    top->generate_subdesign(stream);
    EXPECT_EQ(top->generator_result(), 1);
    EXPECT_NE(messages_of(*top).find(
                  "ADDRESS_WIDTH is 20 CAUSE : It must be from 1 to 16. ACTION : Choose a value from 1 to 16."),
              std::string::npos)
        << messages_of(*top);
    auto const text = file_text("decoder.v");
    EXPECT_TRUE(text.ends_with("//ERROR FILE\n")) << text;
}

} // namespace
