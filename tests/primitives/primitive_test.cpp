#include "support.h"

using namespace gnl_test;

namespace {

using Primitive = in_folder;

} // namespace

TEST_F(Primitive, IsACellWithoutPortsOrTypeParameter)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram", "", 0);
    EXPECT_EQ(cell.get_name(), "ram");
    EXPECT_EQ(cell.get_entity_name(), ""); // until it is generated
    EXPECT_EQ(cell.get_instance_basename(), "gnl_prim");
    EXPECT_TRUE(cell.is_primitive());
    EXPECT_FALSE(cell.use_lpm_type_output());
    EXPECT_TRUE(cell.generate_file());
    EXPECT_FALSE(cell.is_vhdl_primitive());
    EXPECT_FALSE(cell.uses_custom_subdesign_insert_mode());
    EXPECT_EQ(cell.get_vhdl_library(), "");
    std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
    cell.get_port_objects(ports);
    EXPECT_TRUE(ports.empty());
    std::map<std::string, std::string, LESS_C_STRING> versions;
    cell.get_version(versions);
    EXPECT_TRUE(versions.empty());
}

TEST_F(Primitive, WithoutANameIsACellAllTheSame)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, nullptr, nullptr, 0);
    EXPECT_EQ(cell.get_name(), "");
}

TEST_F(Primitive, TakesItsSettingsFromATextWhenTheyExist)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram", "DEPTH=16,MODE=fast", 0);
    auto & depth = *cell.add_integer_parameter_to_primitive("DEPTH");
    auto & mode = *cell.add_string_parameter_to_primitive("MODE");
    EXPECT_EQ(depth.get_value(), 16);
    EXPECT_EQ(mode.get_value(), "fast");
}

TEST_F(Primitive, PortsOfANumberAndADefault)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram");
    auto & a = *cell.add_input_port_to_primitive("a", 4, 1);
    auto & b = *cell.add_input_port_to_primitive("b", 0, -1);
    auto & q = *cell.add_output_port_to_primitive("q", 8, 0);
    auto & io = *cell.add_bidir_port_to_primitive("io", 2, 1);
    EXPECT_EQ(a.get_width(), 4);
    EXPECT_EQ(a.get_default_value(), 1);
    EXPECT_EQ(b.get_width(), 0);
    EXPECT_EQ(b.get_default_value(), -1);
    EXPECT_EQ(q.get_width(), 8);
    EXPECT_EQ(q.get_2d_width(), 0);
    EXPECT_EQ(q.get_default_value(), 0);
    EXPECT_EQ(io.get_width(), 2);
    EXPECT_EQ(io.get_default_value(), -1);
    EXPECT_EQ(&cell.port("A"), &a);
    EXPECT_EQ(&cell.port("IO"), &io);
}

TEST_F(Primitive, PortsOfExpressions)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram");
    *cell.add_integer_parameter_to_primitive("W") = 3;
    auto & a = *cell.add_input_port_to_primitive("a", "W+1", "");
    auto & q = *cell.add_output_port_to_primitive("q", "W", "2");
    EXPECT_EQ(a.get_width(), 4);
    EXPECT_EQ(a.get_default_value(), -1);
    EXPECT_EQ(q.get_width(), 6);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Primitive, ParametersHaveNoDefault)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram");
    auto & number = *cell.add_integer_parameter_to_primitive("number");
    auto & text = *cell.add_string_parameter_to_primitive("text");
    auto & bits = *cell.add_vector_parameter_to_primitive("bits", 12);
    EXPECT_EQ(number.get_default_value(), -1);
    EXPECT_EQ(text.get_value_list(), "");
    EXPECT_EQ(text.get_default_value_index(), -1);
    EXPECT_EQ(bits.get_width(), 12);
    EXPECT_EQ(bits.get_default_value_as_int(), -1);
    for (GNL_PARAMETER * parameter : {static_cast<GNL_PARAMETER *>(&number), static_cast<GNL_PARAMETER *>(&text),
                                      static_cast<GNL_PARAMETER *>(&bits)})
        EXPECT_FALSE(parameter->is_used());
    EXPECT_EQ(&cell.parameter_vector("BITS"), &bits);
}

TEST_F(Primitive, LibraryNeedsNoComponent)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram");
    EXPECT_TRUE(cell.needs_vhdl_component());
    cell.set_primitive_vhdl_library("lib.pack");
    EXPECT_EQ(cell.get_vhdl_library(), "lib.pack");
    EXPECT_FALSE(cell.needs_vhdl_component());
}

TEST_F(Primitive, SlicesHaveItsNameAndNothingElse)
{
    design top(nullptr);
    auto & array = *new GNL_PRIMITIVE(&top, "ram", "DEPTH=3", 2);
    array.set_instance_name("u");
    array.add_input_port_to_primitive("a", 4, 1);
    array.add_integer_parameter_to_primitive("DEPTH");
    array.set_primitive_vhdl_library("lib.pack");
    auto & slice = array[1];
    EXPECT_EQ(typeid(slice), typeid(GNL_PRIMITIVE));
    EXPECT_EQ(slice.get_name(), "ram");
    EXPECT_EQ(slice.get_array_width(), 0);
    EXPECT_EQ(slice.get_slice_index(), 1);
    EXPECT_EQ(slice.get_array_parent(), &array);
    EXPECT_EQ(slice.get_instance_name(), "u");
    EXPECT_TRUE(slice.is_primitive());
    EXPECT_EQ(slice.get_vhdl_library(), "");
    EXPECT_EQ(slice.get_port_object("a"), nullptr);
    EXPECT_EQ(slice.get_parameter_object("DEPTH"), nullptr);
    EXPECT_EQ(array.port("a").get_width(), 8);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Primitive, ACopySharesNothingThatIsOwned)
{
    design top(nullptr);
    GNL_PRIMITIVE cell(&top, "ram");
    cell.add_input_port_to_primitive("a", 4, 1);
    auto & depth = *cell.add_integer_parameter_to_primitive("DEPTH");
    depth = 4;
    {
        GNL_PRIMITIVE const copy(cell);
        EXPECT_EQ(copy.get_name(), "ram");
        EXPECT_TRUE(copy.is_primitive());
    }
    EXPECT_EQ(cell.port("a").get_width(), 4);
    EXPECT_EQ(depth.get_value(), 4);
    EXPECT_EQ(top.messages(), texts{});
}
