// Vector parameters of 1 to 4,096 bits, given in every form, as each language writes them.

#include "verilog_sections.h"

using namespace gnl_test;

namespace {

/// `width` bits, most significant first: a one in front, and no period behind it.
std::string pattern(int width)
{
    std::string bits(static_cast<std::size_t>(width), '1');
    for (std::size_t i = 1; i < bits.size(); ++i)
        bits[i] = (i * i / 3 + i / 7) % 2 == 0 ? '1' : '0';
    return bits;
}

std::string hexadecimal(std::string bits)
{
    bits.insert(0, (4 - bits.size() % 4) % 4, '0');
    std::string digits;
    for (std::size_t i = 0; i < bits.size(); i += 4) {
        int digit = 0;
        for (char const bit : bits.substr(i, 4))
            digit = digit * 2 + (bit == '1');
        digits += "0123456789ABCDEF"[digit];
    }
    return digits;
}

/// Doubles the number for each bit, digit by digit.
std::string decimal(std::string const & bits)
{
    std::string digits = "0"; // the least significant digit first
    for (char const bit : bits) {
        int carry = bit == '1';
        for (char & digit : digits) {
            int const doubled = (digit - '0') * 2 + carry;
            digit = static_cast<char>('0' + doubled % 10);
            carry = doubled / 10;
        }
        if (carry != 0)
            digits += '1';
    }
    return {digits.rbegin(), digits.rend()};
}

/// One form in which a value can be given.
struct form
{
    char const * name;
    void (*give)(GNL_PARAMETER_VECTOR & vector, std::string const & bits);
    int widest = 4096;
};

std::string in_lower_case(std::string text)
{
    for (char & c : text)
        c = static_cast<char>(std::tolower(c));
    return text;
}

std::vector<form> all_forms()
{
    return {
        {"binary", [](GNL_PARAMETER_VECTOR & v, std::string const & bits) { v = "0b" + bits; }},
        {"binary_of_the_text",
         [](GNL_PARAMETER_VECTOR & v, std::string const & bits) {
             v.get_parent()->assign_value_to_parameter("BITS", "0B" + bits);
         }},
        {"hexadecimal", [](GNL_PARAMETER_VECTOR & v, std::string const & bits) { v = "0x" + hexadecimal(bits); }},
        {"lower_case_hexadecimal",
         [](GNL_PARAMETER_VECTOR & v, std::string const & bits) { v = in_lower_case("0x" + hexadecimal(bits)); }},
        {"decimal", [](GNL_PARAMETER_VECTOR & v, std::string const & bits) { v = decimal(bits); }},
        {"wide_integer",
         [](GNL_PARAMETER_VECTOR & v, std::string const & bits) {
             MLIB_UINTEGER value(0, static_cast<int>(bits.size()));
             value.set_value_from_bin_string(bits);
             v = value;
         }},
        {"integer", [](GNL_PARAMETER_VECTOR & v, std::string const & bits) { v = std::stoi(bits, nullptr, 2); }, 31}};
}

std::vector<int> widths()
{
    std::vector<int> all;
    for (int width = 1; width <= 20; ++width)
        all.push_back(width);
    for (int power = 32; power <= 4096; power *= 2)
        for (int const width : {power - 1, power, power + 1})
            if (width <= 4096)
                all.push_back(width);
    all.push_back(1000); // the length at which constants of ports are cut in VHDL, and vectors are not
    all.push_back(1001);
    return all;
}

/// A cell with one vector, and its texts.
class vector_cell
{
public:
    explicit vector_cell(int width)
        : m_cell(m_top.cell("u"))
        , m_vector(m_cell.vector("BITS", -1, width))
    {
    }

    GNL_PARAMETER_VECTOR & vector() { return m_vector; }
    std::string verilog()
    {
        design::set_gen_language(GNL_VERILOG);
        return written(m_cell, &GNL_GENERATOR::dump_verilog_parameter_section, false, -1);
    }
    std::string vhdl()
    {
        design::set_gen_language(GNL_VHDL);
        return written(m_cell, &GNL_GENERATOR::dump_vhdl_parameter_mappings_for_wrapper);
    }
    std::string qhdl()
    {
        design::set_gen_language(GNL_QHDL);
        return written(m_cell, &GNL_GENERATOR::dump_qhdl_parameter_section, false);
    }
    std::string header() { return m_cell.dump_header(false); }

private:
    top_design m_top;
    design & m_cell;
    GNL_PARAMETER_VECTOR & m_vector;
};

class VectorTexts : public in_folder_with_parameter<form>
{
};

} // namespace

TEST_P(VectorTexts, HaveExactlyTheDigitsOfTheValue)
{
    for (int const width : widths()) {
        if (width > GetParam().widest)
            continue;
        SCOPED_TRACE(width);
        auto const bits = pattern(width);
        auto const digits = hexadecimal(bits);
        vector_cell cell(width);
        GetParam().give(cell.vector(), bits);
        EXPECT_EQ(cell.verilog(), "\tdefparam\n\t\tu.bits = " + std::to_string(digits.size() * 4) + "'h" + digits
                                      + ",\n\t\tu.lpm_type = \"blk\";\n");
        EXPECT_EQ(cell.vhdl(), "\t  GENERIC MAP (\n\t\tBITS => \"" + bits + "\"\n\t  )\n");
        EXPECT_EQ(cell.qhdl(), "WITH ( \t\tBITS = \"" + digits + "\") \n");
        EXPECT_EQ(cell.header(), "blk BITS=" + digits);
        cell.vector().set_to_use_binary_output();
        cell.vector().set_as_vhdl_bit_vector();
        EXPECT_EQ(cell.verilog(),
                  "\tdefparam\n\t\tu.bits = " + std::to_string(width) + "'b" + bits + ",\n\t\tu.lpm_type = \"blk\";\n");
        EXPECT_EQ(cell.vhdl(), "\t  GENERIC MAP (\n\t\tBITS => X\"" + digits + "\"\n\t  )\n");
        EXPECT_EQ(cell.qhdl(), "WITH ( \t\tBITS = \"" + bits + "\") \n");
    }
}

TEST_P(VectorTexts, AreCutToAFixedWidth)
{
    for (int const width : {1, 5, 31, 64, 1000}) {
        if (width + 1 > GetParam().widest)
            continue;
        auto const bits = pattern(width + 1);
        vector_cell cell(width);
        GetParam().give(cell.vector(), bits);
        EXPECT_EQ(cell.vhdl(), "\t  GENERIC MAP (\n\t\tBITS => \"" + bits.substr(1) + "\"\n\t  )\n") << width;
    }
}

INSTANTIATE_TEST_SUITE_P(All, VectorTexts, ::testing::ValuesIn(all_forms()),
                         [](auto const & parameter) { return parameter.param.name; });
