// Arrays of ten thousand slices: the text is right, and nothing grows with the square of the slices (a test that did
// would run for minutes).

#include "support.h"

using namespace gnl_test;

namespace {

using LargeArrays = in_folder;

constexpr int slices = 10000;

/// An array of cells of two bits, q = ~d.
design & cells(design & parent)
{
    auto & array = parent.child("cell", "u", "", slices);
    array.declare_slice = [](design & of) {
        of.input("d", 2);
        of.output("q", 2);
        of.integer("KIND", 0);
    };
    array.declare_slice(array);
    array.body = [](design & of) { of.port("q") = ~of.port("d"); };
    return array;
}

std::string bits(int slice)
{
    return "[" + std::to_string(2 * slice + 1) + ":" + std::to_string(2 * slice) + "]";
}

/// The instances as they must stand in the text; `driver` says what slice `i` reads.
std::string instances(std::string const & entity, std::function<std::string(int)> const & driver)
{
    std::string text;
    for (int i = 0; i < slices; ++i)
        text += "\t" + entity + "   u_" + std::to_string(i) + "\n\t( \n\t.d(" + driver(i) + "),\n\t.q(wire_u_q"
                + bits(i) + "));\n";
    return text;
}

/// What the file "top.v" holds from the first instance to the assignment behind the last one.
std::string written_instances(std::string const & entity)
{
    auto const text = file_text("top.v");
    auto const from = text.find("\t" + entity + "   u_0\n");
    return from == std::string::npos ? text : text.substr(from, text.find("\tassign\n", from) - from);
}

/// The entity of the array's design.
std::string common_entity(design & top)
{
    std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> children;
    top.get_subdesign_generator_objects(children);
    return children.at("u")->get_entity_name();
}

} // namespace

TEST_F(LargeArrays, OneBusForAllSlices)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a", 2 * slices);
    auto & y = top.output("y", 2 * slices);
    top.run([&](design & of) {
        auto & array = cells(of);
        array.port("d") = a;
        y = array.port("q");
    });
    EXPECT_EQ(top.messages(), texts{});
    auto const entity = common_entity(top);
    EXPECT_TRUE(written_instances(entity) == instances(entity, [](int i) { return "wire_u_d" + bits(i); }));
}

TEST_F(LargeArrays, EverySliceConnectedByItself)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a", 2 * slices);
    auto & y = top.output("y", 2 * slices);
    top.run([&](design & of) {
        auto & array = cells(of);
        for (int i = 0; i < slices; ++i) {
            array[i].port("d") = a.range(2 * i + 1, 2 * i);
            y.range(2 * i + 1, 2 * i) = array[slices - 1 - i].port("q");
        }
    });
    EXPECT_EQ(top.messages(), texts{});
    auto const entity = common_entity(top);
    EXPECT_TRUE(written_instances(entity) == instances(entity, [](int i) { return "a" + bits(i); }));
    auto const text = file_text("top.v");
    EXPECT_NE(text.find("\t\ty = {wire_u_q[1:0], wire_u_q[3:2], "), std::string::npos);
}

TEST_F(LargeArrays, SlicesOfTwoKinds)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a", 2 * slices);
    auto & y = top.output("y", 2 * slices);
    top.run([&](design & of) {
        auto & array = cells(of);
        for (int i = 1; i < slices; i += 2)
            array[i].parameter_integer("KIND") = 1;
        array.port("d") = a;
        y = array.port("q");
    });
    EXPECT_EQ(top.messages(), texts{});
    auto const text = file_text("top.v");
    int modules = 0;
    for (auto at = text.find("\nmodule  "); at != std::string::npos; at = text.find("\nmodule  ", at + 1))
        ++modules;
    EXPECT_EQ(modules, 3) << "two kinds of cells and the top";
}
