// The comment lines at the top of a file.

#include "core/driver_support.h"

#include "ccl_ver.h"

namespace {

using namespace gnl_test;

using Headers = in_folder;

/// A subdesign: its header is built without marking ports as used.
class sub_header : public in_folder
{
protected:
    design top{nullptr, "top"};
    design & sub = top.child("sub", "u1");
};

using HeaderLine = sub_header;

TEST_F(HeaderLine, BeginsWithTheName)
{
    EXPECT_EQ(sub.dump_header(true), "sub");
    EXPECT_EQ(sub.dump_header(false), "sub");
}

TEST_F(HeaderLine, HoldsUsedPortsInNameOrder)
{
    sub.input("z").set_used();
    sub.output("B").set_used();
    sub.bidir("a").set_used();
    sub.input("unused", 0, 1);
    sub.wire("w").set_used();
    EXPECT_EQ(sub.dump_header(true), "sub a B z");
}

TEST_F(HeaderLine, ShowsAnInputThatIsHeldAtItsDefault)
{
    sub.input("low", 0, 0).set_constant_used();
    sub.input("high", 0, 1).set_constant_used();
    sub.input("open").set_constant_used();
    EXPECT_EQ(sub.dump_header(true), "sub high(vcc) low(gnd) open()");
}

TEST_F(HeaderLine, HoldsUsedParametersByKind)
{
    sub.integer("SIZE", 2) = 7;
    sub.string("MODE", "SLOW(S)|FAST", 1) = "s";
    sub.vector("INIT", 0, 9) = 175;
    sub.integer("UNUSED_ONE", 4);
    EXPECT_EQ(sub.dump_header(true), "sub INIT=0AF MODE=\"SLOW\" SIZE=7");
}

TEST_F(HeaderLine, LeavesOutWhatIsNotHashed)
{
    auto & size = sub.integer("SIZE", 2);
    size = 7;
    size.set_not_used_for_hash();
    EXPECT_EQ(sub.dump_header(true), "sub");
}

TEST_F(HeaderLine, PutsParametersBeforeArraysBeforePorts)
{
    GNL_PARAMETER_INTEGER_ARRAY taps(&sub, "ATAP", -1);
    taps[2] = 5;
    sub.integer("ZSIZE", 2) = 7;
    sub.input("a").set_used();
    EXPECT_EQ(sub.dump_header(true), "sub ZSIZE=7 ATAP2=5 a");
}

TEST_F(HeaderLine, EndsWithTheInternalOptions)
{
    sub.set_qelvar_internal_option("X=1");
    sub.set_qelvar_internal_option("Y=2");
    EXPECT_EQ(sub.dump_header(true), "sub QELVAR_INTERNAL_OPTIONS=X=1;Y=2");
}

TEST_F(HeaderLine, IsTheSameInASecondRun)
{
    auto const header = [] {
        design parent(nullptr, "top");
        auto & child = parent.child("sub", "u1");
        child.integer("SIZE", 2) = 7;
        child.input("d").set_used();
        return child.dump_header(true);
    };
    EXPECT_EQ(header(), header());
}

TEST_F(HeaderLine, TheDeviceFamilyStandsInBothForms)
{
    design family(nullptr, "top", "DEVICE_FAMILY=Solanix");
    auto & child = family.child("sub", "u1");
    family.string("DEVICE_FAMILY", "");
    child.string("DEVICE_FAMILY", "");
    EXPECT_EQ(child.dump_header(true), "sub DEVICE_FAMILY=\"Solanix\"");
    EXPECT_EQ(child.dump_header(false), "sub DEVICE_FAMILY=\"Solanix\"");
}

TEST_F(Headers, HashedOptionsStandInNameOrderAmongTheParameters)
{
    design top(nullptr, "top",
               "LBX_SINGLE_OUTPUT_FILE=OFF,LBX_STRUCTURAL_NETLIST=ON,LBX_AUTO_BLACKBOX=ALL,"
               "LBX_DECLARE_ALL_CONNECTED_PORTS=OFF,LBX_VHDL_WRAPPERS=ON,LBX_FILE=top.v");
    auto & sub = top.child("sub", "u1");
    sub.integer("A", 1) = 2;
    sub.integer("LBX_E", 1) = 3;
    sub.integer("Z", 1) = 4;
    std::string const all = " A=2 LBX_AUTO_BLACKBOX=\"ALL\" LBX_DECLARE_ALL_CONNECTED_PORTS=\"OFF\" LBX_E=3"
                            " LBX_SINGLE_OUTPUT_FILE=\"OFF\" LBX_STRUCTURAL_NETLIST=\"ON\" Z=4";
    EXPECT_EQ(sub.dump_header(true), "sub" + all);
}

TEST_F(Headers, AnOptionTakenOutOfTheHashLeavesTheLine)
{
    design top(nullptr, "top", "LBX_SINGLE_OUTPUT_FILE=OFF,LBX_STRUCTURAL_NETLIST=ON");
    auto & sub = top.child("sub", "u1");
    sub.option(gnl_detail::option_id::single_output_file).set_not_used_for_hash();
    EXPECT_EQ(sub.dump_header(true), "sub LBX_STRUCTURAL_NETLIST=\"ON\"");
}

class customized : public design
{
public:
    using design::design;
    void update_legacy_parameter_values() override { calls += "legacy "; }
    void customize_declaration_from_parameters() override { calls += "customize "; }
    std::string calls;
};

TEST_F(Headers, TheTopBringsItsParametersUpToDateFirst)
{
    customized top(nullptr, "top");
    auto & needed = top.input("needed");
    EXPECT_EQ(top.dump_header(true), "top needed");
    EXPECT_EQ(top.calls, "legacy customize ");
    EXPECT_TRUE(needed.check_is_used_flag());
    customized sub(&top, "sub");
    EXPECT_EQ(sub.dump_header(true), "sub");
    EXPECT_EQ(sub.calls, "");
}

class array_of_two : public in_folder
{
protected:
    static void declare(design & cell)
    {
        cell.integer("SIZE", 2);
        cell.string("MODE", "", -1);
        cell.vector("INIT", 0, 8);
    }
    void SetUp() override
    {
        in_folder::SetUp();
        array.declare_slice = declare;
        declare(array);
    }
    design top{nullptr, "top"};
    design & array = top.child("cell", "u", "", 2);
};

using SliceHeader = array_of_two;

TEST_F(SliceHeader, OfASliceThatWasGivenNothingIsThatOfItsMaster)
{
    EXPECT_EQ(array[0].dump_header(false), "cell");
    EXPECT_EQ(array.dump_header(false), "cell");
}

TEST_F(SliceHeader, FollowsTheMaster)
{
    array.parameter_integer("SIZE") = 5;
    array.parameter_string("MODE") = "FAST";
    array.parameter_vector("INIT") = 10;
    array[0];
    EXPECT_EQ(array.dump_header(false), "cell INIT=0A MODE=\"FAST\" SIZE=5");
    EXPECT_EQ(array[1].dump_header(false), array.dump_header(false));
}

TEST_F(SliceHeader, OfADifferingSliceHasItsOwnValues)
{
    array.parameter_integer("SIZE") = 5;
    array[0].parameter_integer("SIZE") = 6;
    EXPECT_EQ(array[0].dump_header(false), "cell SIZE=6");
    EXPECT_EQ(array[1].dump_header(false), "cell SIZE=5");
}

// ---- versions

class versioned : public design
{
public:
    using design::design;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & map) override
    {
        for (auto const & [name, version] : versions)
            map[name] = version;
    }
    std::map<std::string, std::string> versions;
};

std::string system_version()
{
    auto const pack = ver_get_service_pack();
    return ver_get_version() + (pack.empty() ? "" : "SP" + pack) + " ";
}

TEST_F(Headers, ADesignWithoutModulesHasAnEmptyVersionLine)
{
    design top(nullptr, "top");
    EXPECT_EQ(top.dump_version_header(), "");
    EXPECT_EQ(top.get_version_string(), "");
}

TEST_F(Headers, VersionsOfTheDesignAndAllSubdesigns)
{
    versioned top(nullptr, "top");
    top.versions = {{"zeta", "3"}, {"_", "hidden"}};
    versioned sub(&top, "sub");
    sub.set_instance_name("u1");
    versioned leaf(&sub, "leaf");
    leaf.set_instance_name("u1");
    leaf.versions = {{"alpha", "1.2"}};
    EXPECT_EQ(top.dump_version_header(), "VERSION_BEGIN " + system_version() + "alpha 1.2 zeta 3  VERSION_END");
    EXPECT_EQ(top.get_version_string(), system_version() + "alpha 1.2 zeta 3 ");
    EXPECT_EQ(sub.dump_version_header(), "VERSION_BEGIN " + system_version() + "alpha 1.2  VERSION_END");
}

TEST_F(Headers, AHiddenModuleAloneStillMakesALine)
{
    versioned top(nullptr, "top");
    top.versions = {{"_", "hidden"}};
    EXPECT_EQ(top.dump_version_header(), "VERSION_BEGIN " + system_version() + " VERSION_END");
}

TEST_F(Headers, ToolVersion)
{
    design top(nullptr, "top");
    EXPECT_EQ(top.get_tolvane_version(),
              "Version " + ver_get_version() + " " + ver_get_build_number_string() + " " + ver_get_build_date());
}

// ---- legal text and declarations

TEST_F(Headers, LegalTextIsABlockOfComments)
{
    design top(nullptr, "top");
    for (int language : {GNL_VERILOG, GNL_VHDL, GNL_QHDL}) {
        top.set_gen_language(language);
        std::string const mark = GNL_GENERATOR::comment_string();
        std::istringstream text(top.dump_copyright_header_legal_text());
        int lines = 0;
        for (std::string line; std::getline(text, line); ++lines)
            EXPECT_TRUE(line.starts_with(mark + "  ")) << line;
        EXPECT_EQ(lines, 12);
        EXPECT_EQ(top.dump_copyright_header(),
                  mark + " " + ver_get_copyright_string() + "\n" + top.dump_copyright_header_legal_text());
    }
}

TEST_F(Headers, DeclaredListHoldsParametersAndPins)
{
    design any(nullptr, "any");
    any.integer("SIZE", 2);
    any.vector("INIT", 0, 8);
    any.string("MODE", "").set_as_not_included_in_declaration();
    any.input("d");
    any.output("B");
    any.bidir("io");
    any.wire("w");
    EXPECT_EQ(any.get_declared_parameter_and_port_list(), " INIT SIZE B d io");
}

} // namespace
