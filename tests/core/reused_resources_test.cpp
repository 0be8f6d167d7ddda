// What designs count whose files are reused: a body that doesn't run counts by the resource line of its file.

#include "driver_support.h"

namespace {

using namespace gnl_test;

/// Only files that name a version are reused.
class versioned_design : public design
{
public:
    using design::design;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override { versions["maker"] = "1"; }
};

class ReusedResources : public in_folder
{
protected:
    /// The resource line of a file.
    static std::string resources(std::string const & file = "top.tdf")
    {
        std::istringstream lines(file_text(file));
        std::string const mark = "--synthesis_resources = ";
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with(mark))
                return line.substr(mark.size());
        return "no resource line";
    }

    /// A part of `parent` whose body counts `use`.
    design & part(design & parent, std::string const & instance, std::map<std::string, int> const & use,
                  int array_width = 0)
    {
        auto & made = *new versioned_design(&parent, "part", "", array_width);
        made.set_instance_name(instance);
        auto & in = made.input("d");
        auto & out = made.output("q");
        made.body = [this, use, &in, &out](design & of) {
            ++m_runs;
            out = in;
            for (auto const & [unit, count] : use)
                of.update_resource_map(unit, count);
            m_part_file = of.get_entity_name() + ".tdf";
        };
        in = 1;
        return made;
    }

    /// Runs a design; returns how many bodies of parts have run.
    int run(std::function<void(design &)> const & body)
    {
        m_runs = 0;
        design top(nullptr, "top", "LBX_FILE=top.tdf");
        top.run(body);
        EXPECT_EQ(top.messages(), texts{});
        return m_runs;
    }

    /// Puts another count into the file of the part.
    void replace_resources(std::string const & line)
    {
        auto text = file_text(m_part_file);
        auto const old = resources(m_part_file);
        auto const at = text.find(old);
        ASSERT_NE(at, std::string::npos);
        write_file(m_part_file, text.replace(at, old.size(), line));
    }

    int m_runs = 0;
    std::string m_part_file;
};

TEST_F(ReusedResources, EachUnitCounts)
{
    auto const body = [this](design & top) { part(top, "u", {{"lut", 5}, {"block ram", 2}}); };
    EXPECT_EQ(run(body), 1);
    EXPECT_EQ(resources(m_part_file), "block ram 2 lut 5 ");
    EXPECT_EQ(resources(), "block ram 2 lut 5 ");
    EXPECT_EQ(run(body), 0);
    EXPECT_EQ(resources(), "block ram 2 lut 5 ");
}

TEST_F(ReusedResources, TheLineHoldsWhatStandsBelow)
{
    auto const body = [this](design & top) {
        auto & middle = *new versioned_design(&top, "middle");
        middle.set_instance_name("m");
        auto & out = middle.output("y");
        middle.body = [this, &out](design & of) {
            auto & one = part(of, "u1", {{"lut", 5}});
            auto & two = part(of, "u2", {{"lut", 5}});
            auto & cell = of.child("blk", "c");
            cell.set_primitive();
            out = one.port("q") & two.port("q");
        };
        top.output("z") = out;
    };
    EXPECT_EQ(run(body), 1); // the two parts are one design
    EXPECT_EQ(resources(), "blk 1 lut 10 ");
    EXPECT_EQ(run(body), 0);
    EXPECT_EQ(resources(), "blk 1 lut 10 ");
}

TEST_F(ReusedResources, AnArrayCountsForEachSlice)
{
    auto const body = [this](design & top) { part(top, "u", {{"lut", 5}}, 3); };
    EXPECT_EQ(run(body), 1);
    EXPECT_EQ(resources(m_part_file), "lut 5 ");
    EXPECT_EQ(resources(), "lut 15 ");
    EXPECT_EQ(run(body), 0);
    EXPECT_EQ(resources(), "lut 15 ");
}

TEST_F(ReusedResources, ThePieceOfAUnitIsCountedWhole)
{
    // A file names the whole units, and the pieces that were left over are no longer known.
    auto const body = [this](design & top) { part(top, "u", {{"reg/2", 3}}); };
    EXPECT_EQ(run(body), 1);
    EXPECT_EQ(resources(), "reg 2 ");
    EXPECT_EQ(run(body), 0);
    EXPECT_EQ(resources(), "reg 2 ");
}

TEST_F(ReusedResources, TheFileDecides)
{
    auto const body = [this](design & top) { part(top, "u", {{"lut", 5}}); };
    run(body);
    replace_resources("lut 9 big one 1 ");
    EXPECT_EQ(run(body), 0);
    EXPECT_EQ(resources(), "big one 1 lut 9 ");
    replace_resources("lots ");
    EXPECT_EQ(run(body), 0);
    EXPECT_EQ(resources(), "");
}

TEST_F(ReusedResources, ACountingRunReadsNoFiles)
{
    auto const body = [this](design & top) { part(top, "u", {{"lut", 5}}); };
    run(body);
    replace_resources("lut 9 ");
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    top.body = body;
    EXPECT_STREQ(top.get_resource_count(), "5 lut;");
}

} // namespace
