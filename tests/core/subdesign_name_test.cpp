// Names of designs: a function of their settings, shared by equal designs and kept apart from all others.

#include "driver_support.h"

namespace {

using namespace gnl_test;

class SubdesignName : public in_folder
{
};

/// A child with one input and one output, whose body counts its runs.
class leaf : public design
{
public:
    leaf(design & parent, std::string const & instance, std::string const & size = "", char const * text = "")
        : design(&parent, "leaf", text)
        , m_size(this, "SIZE", "", -1)
        , m_d(this, "d")
        , m_q(this, "q")
    {
        set_instance_name(instance);
        if (!size.empty())
            m_size = size;
        body = [this](design &) {
            ++runs;
            m_q = m_d;
            update_resource_map("lut/2", 3);
        };
    }
    /// Connects the leaf between the two ports.
    leaf & between(GNL_PORT & from, GNL_PORT & to)
    {
        m_d = from;
        to = m_q;
        return *this;
    }
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        if (!version.empty())
            versions["maker"] = version;
    }

    static inline int runs = 0;
    static inline std::string version = "1";

private:
    GNL_PARAMETER_STRING m_size;
    GNL_PORT_INPUT m_d;
    GNL_PORT_OUTPUT m_q;
};

std::string header(std::string const & size)
{
    return "leaf SIZE=\"" + size + "\" d q";
}

/// Generates a top with one leaf for each size and returns their entity names.
texts entities(std::string const & options, texts const & sizes)
{
    design top(nullptr, "top", options.c_str());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        top.input("a" + std::to_string(i));
        top.output("y" + std::to_string(i));
    }
    std::vector<leaf *> leaves;
    leaf::runs = 0;
    top.run([&](design & self) {
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            auto const id = std::to_string(i);
            leaves.push_back(new leaf(self, "u" + id + "x", sizes[i]));
            leaves.back()->between(self.port("a" + id), self.port("y" + id));
        }
    });
    texts names;
    for (auto const * each : leaves)
        names.push_back(each->get_entity_name());
    EXPECT_EQ(top.messages(), texts{});
    return names;
}

std::string name_from(int seed)
{
    return design(nullptr, "any").generate_name_from_value(seed);
}

TEST_F(SubdesignName, IsMadeOfTheSeedsDigits)
{
    EXPECT_EQ(name_from(0), "mg");
    EXPECT_EQ(name_from(9), "mg9");
    EXPECT_EQ(name_from(10), "mga");
    EXPECT_EQ(name_from(31), "mgv");
    EXPECT_EQ(name_from(32), "mg01");
    EXPECT_EQ(name_from(1000), "mg8v"); // 31 * 32 + 8
}

TEST_F(SubdesignName, ABaseNameReplacesTheFirstLetters)
{
    design any(nullptr, "any");
    any.set_instance_basename("SD");
    EXPECT_EQ(any.generate_name_from_value(32), "mg01");
    any.set_instance_basename("reg");
    EXPECT_EQ(any.generate_name_from_value(32), "reg_01");
}

TEST_F(SubdesignName, SumsTheCharactersOfTheHeader)
{
    // "leaf" alone: l 108, e 101, a 97, f 102; 408 = 12 * 32 + 24, which are "c" and "o".
    design top(nullptr, "top", "LBX_FILE=top.v");
    design * child = nullptr;
    top.run([&](design & self) { child = &self.child("leaf", "u1"); });
    EXPECT_EQ(child->get_entity_name(), "top_mgoc");
}

TEST_F(SubdesignName, CaseDoesNotCount)
{
    auto const names = entities("LBX_FILE=top.v", {"ab", "AB"});
    EXPECT_EQ(names, (texts{"top_" + name_of(header("ab")), "top_" + name_of(header("ab"))}));
    EXPECT_EQ(leaf::runs, 1);
}

TEST_F(SubdesignName, EqualDesignsOfOneFileAreWrittenOnce)
{
    auto const name = "top_" + name_of(header("5"));
    EXPECT_EQ(entities("LBX_FILE=top.v", {"5", "5", "5"}), (texts{name, name, name}));
    EXPECT_EQ(leaf::runs, 1);
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(SubdesignName, TheSecondOfTwoEqualDesignsCountsAsTheFirst)
{
    entities("LBX_FILE=top.v", {"5", "5"});
    // Twice 3 halves are 3 whole ones, each alone would be 2.
    auto const text = file_text("top.v");
    EXPECT_NE(text.find("\n//synthesis_resources = lut 2 \n"), std::string::npos);
    EXPECT_NE(text.find("\n//synthesis_resources = lut 3 \n"), std::string::npos);
}

TEST_F(SubdesignName, DifferentDesignsOfOneSumTakeTheNextNames)
{
    texts const expected{"top_" + name_of(header("12")), "top_" + name_of(header("12"), 1),
                         "top_" + name_of(header("12"), 2), "top_" + name_of(header("12"), 1),
                         "top_" + name_of(header("12"))};
    EXPECT_EQ(entities("LBX_FILE=top.v", {"12", "21", "03", "21", "12"}), expected);
    EXPECT_EQ(leaf::runs, 3);
}

TEST_F(SubdesignName, ANameInTheListForOtherSettingsIsPassed)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto const taken = "top_" + name_of(header("5"));
    top.check_list_of_subdesigns(taken, "other settings");
    auto & a = top.input("a");
    auto & y = top.output("y");
    leaf * child = nullptr;
    top.run([&](design & self) {
        child = new leaf(self, "u1", "5");
        child->between(a, y);
    });
    EXPECT_EQ(child->get_entity_name(), "top_" + name_of(header("5"), 1));
}

TEST_F(SubdesignName, SeparateFilesHaveNoPrefix)
{
    auto const names = entities("LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF", {"12", "21", "12"});
    // The option is part of the settings.
    auto const with_option = [](std::string const & size) {
        return "leaf LBX_SINGLE_OUTPUT_FILE=\"OFF\" SIZE=\"" + size + "\" d q";
    };
    EXPECT_EQ(names, (texts{name_of(with_option("12")), name_of(with_option("12"), 1), name_of(with_option("12"))}));
    EXPECT_EQ(leaf::runs, 2);
    EXPECT_EQ(files().size(), 3u);
    EXPECT_TRUE(files()[names[0] + ".v"].starts_with("//" + with_option("12") + "\n"));
    EXPECT_TRUE(files()[names[1] + ".v"].starts_with("//" + with_option("21") + "\n"));
}

TEST_F(SubdesignName, QhdlDesignsAlwaysHaveFilesOfTheirOwn)
{
    EXPECT_EQ(entities("LBX_FILE=top.tdf", {"12", "21", "12"}),
              (texts{name_of(header("12")), name_of(header("12"), 1), name_of(header("12"))}));
    EXPECT_EQ(leaf::runs, 2);
    EXPECT_EQ(files().size(), 3u);
}

TEST_F(SubdesignName, AnAppendedQhdlRunPutsTheStemInFront)
{
    EXPECT_EQ(entities("LBX_FILE=chip.tdf:a", {"12", "21"}),
              (texts{"chip_" + name_of(header("12")), "chip_" + name_of(header("12"), 1)}));
}

TEST_F(SubdesignName, AnAppendedVerilogRunPutsTheStemInFront)
{
    EXPECT_EQ(entities("LBX_FILE=chip.v:a", {"12", "21", "21"}),
              (texts{"chip_" + name_of(header("12")), "chip_" + name_of(header("12"), 1),
                     "chip_" + name_of(header("12"), 1)}));
    EXPECT_EQ(files().size(), 1u);
}

// ---- files of earlier runs

class SubdesignReuse : public in_folder
{
protected:
    void TearDown() override
    {
        leaf::version = "1";
        in_folder::TearDown();
    }
    std::string const m_file = name_of(header("12")) + ".tdf";
};

TEST_F(SubdesignReuse, AValidFileOfTheSameSettingsIsReused)
{
    entities("LBX_FILE=top.tdf", {"12"});
    EXPECT_EQ(entities("LBX_FILE=top.tdf", {"12"}), texts{name_of(header("12"))});
    EXPECT_EQ(leaf::runs, 0);
}

TEST_F(SubdesignReuse, AReusedFileCounts)
{
    entities("LBX_FILE=top.tdf", {"12"});
    auto const first = file_text("top.tdf");
    EXPECT_NE(first.find("\n--synthesis_resources = lut 2 \n"), std::string::npos);
    entities("LBX_FILE=top.tdf", {"12"});
    EXPECT_EQ(leaf::runs, 0);
    EXPECT_EQ(file_text("top.tdf"), first);
}

TEST_F(SubdesignReuse, AFileOfAnotherVersionIsWrittenAgain)
{
    entities("LBX_FILE=top.tdf", {"12"});
    leaf::version = "2";
    EXPECT_EQ(entities("LBX_FILE=top.tdf", {"12"}), texts{name_of(header("12"))});
    EXPECT_EQ(leaf::runs, 1);
    EXPECT_NE(file_text(m_file).find(" maker 2 "), std::string::npos);
}

TEST_F(SubdesignReuse, AFileWithoutAVersionIsWrittenAgain)
{
    leaf::version = "";
    entities("LBX_FILE=top.tdf", {"12", "12"});
    EXPECT_EQ(leaf::runs, 2);
}

TEST_F(SubdesignReuse, AnErrorFileIsWrittenAgainUnderItsName)
{
    entities("LBX_FILE=top.tdf", {"12"});
    auto text = file_text(m_file);
    text.replace(text.rfind("VALID"), 5, "ERROR");
    write_file(m_file, text);
    EXPECT_EQ(entities("LBX_FILE=top.tdf", {"12"}), texts{name_of(header("12"))});
    EXPECT_EQ(leaf::runs, 1);
    EXPECT_TRUE(file_text(m_file).ends_with("--VALID FILE\n"));
}

TEST_F(SubdesignReuse, ForcedGenerationWritesAgainUnderTheSameName)
{
    entities("LBX_FILE=top.tdf", {"12"});
    EXPECT_EQ(entities("LBX_FILE=top.tdf,LBX_FORCE_HDL_GENERATION=ON", {"12"}), texts{name_of(header("12"))});
    EXPECT_EQ(leaf::runs, 1);
}

TEST_F(SubdesignReuse, ForeignFilesArePassed)
{
    write_file(m_file, "-- mine\n");
    write_file(name_of(header("12"), 1) + ".tdf", "");
    EXPECT_EQ(entities("LBX_FILE=top.tdf", {"12", "21"}), (texts{name_of(header("12"), 2), name_of(header("12"), 3)}));
    EXPECT_EQ(file_text(m_file), "-- mine\n");
}

TEST_F(SubdesignReuse, FilesOfOtherSettingsFromAnEarlierRunArePassedAndFound)
{
    entities("LBX_FILE=top.tdf", {"12", "21", "03"});
    texts const expected{name_of(header("12"), 2), name_of(header("12"), 1), name_of(header("12")),
                         name_of(header("12"), 3)};
    EXPECT_EQ(entities("LBX_FILE=top.tdf", {"03", "21", "12", "30"}), expected);
    EXPECT_EQ(leaf::runs, 1);
}

TEST_F(SubdesignReuse, FoldersOfNamesToAvoid)
{
    fs::create_directory("out");
    fs::create_directory("old");
    write_file("old/" + name_of(header("12")) + ".v", "");
    write_file("old/" + name_of(header("12"), 1) + ".vhd", "");
    EXPECT_EQ(entities("LBX_FILE=top.tdf,LBX_OUTPUT_DIRECTORY=out;old", {"12", "21"}),
              (texts{name_of(header("12"), 2), name_of(header("12"), 3)}));
    EXPECT_TRUE(fs::exists("out/" + name_of(header("12"), 2) + ".tdf"));
    EXPECT_TRUE(fs::exists("out/top.tdf"));
}

// ---- fixed prefixes

TEST_F(SubdesignName, AFixedPrefixNeedsAnInstanceOrAppending)
{
    EXPECT_FALSE(design(nullptr, "top", "LBX_MODULE_PREFIX=chip").is_fixed_prefix_mode());
    EXPECT_FALSE(design(nullptr, "top", "LBXI_INSTANCE_NAME=core").is_fixed_prefix_mode());
    EXPECT_FALSE(design(nullptr, "top", "LBX_MODULE_PREFIX=UNUSED,LBXI_INSTANCE_NAME=core").is_fixed_prefix_mode());
    EXPECT_FALSE(design(nullptr, "top", "LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=unused").is_fixed_prefix_mode());
    EXPECT_TRUE(design(nullptr, "top", "LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core").is_fixed_prefix_mode());
    design top(nullptr, "top", "LBX_MODULE_PREFIX=chip");
    top.set_append_mode();
    EXPECT_TRUE(top.is_fixed_prefix_mode());
}

TEST_F(SubdesignName, AFixedPrefixStandsBeforeTheBaseName)
{
    design top(nullptr, "top", "LBX_MODULE_PREFIX=chip");
    EXPECT_EQ(top.get_fixed_prefix_name(), "chip_mg");
    top.set_instance_basename("reg");
    EXPECT_EQ(top.get_fixed_prefix_name(), "chip_reg");
}

TEST_F(SubdesignName, FixedNamesOfOneFileAreMadeUniqueByNumbers)
{
    EXPECT_EQ(entities("LBX_FILE=top.v,LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core", {"1", "2", "3", "2"}),
              (texts{"top_chip_mg", "top_chip_mg1", "top_chip_mg12", "top_chip_mg1"}));
}

TEST_F(SubdesignName, FixedNamesOfFilesAreMadeUniqueByNumbers)
{
    auto const options = "LBX_FILE=top.v,LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core,LBX_SINGLE_OUTPUT_FILE=OFF";
    texts const names{"top_chip_mg", "top_chip_mg1", "top_chip_mg2", "top_chip_mg1"};
    EXPECT_EQ(entities(options, {"1", "2", "3", "2"}), names);
    for (char const * file : {"top_chip_mg.v", "top_chip_mg1.v", "top_chip_mg2.v"})
        EXPECT_TRUE(fs::exists(file)) << file;
    EXPECT_EQ(entities(options, {"1", "2", "3", "2"}), names) << "a second run finds its files again";
    EXPECT_EQ(entities(options, {"4", "2"}), (texts{"top_chip_mg", "top_chip_mg1"})) << "what changed is overwritten";
}

TEST_F(SubdesignName, TheTopsNameIsNotRepeatedInAFixedName)
{
    EXPECT_EQ(entities("LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core", {"1"}), texts{"chip_mg1"});
}

} // namespace
