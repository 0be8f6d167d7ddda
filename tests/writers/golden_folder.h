#pragma once

// Compares everything that a run leaves behind with one golden file, and has a compiler read it, in each language.

#include "golden_run.h"
#include "outside_tools.h"
#include "qhdl/qhdl_reader.h"

#include <algorithm>

namespace gnl_test {

/// A language of design files.
struct file_language
{
    char const * name;
    std::string ending; ///< of its files' names
    std::string comment;
};

inline void PrintTo(file_language const & shown, std::ostream * out)
{
    *out << shown.name;
}

inline file_language const file_languages[] = {{"Verilog", ".v", "//"}, {"Vhdl", ".vhd", "--"}, {"Qhdl", ".tdf", "--"}};

/// Tests of whole runs in each language. The golden files of one design stand side by side, so that a reviewer sees
/// what differs.
class in_each_language : public in_folder_with_parameter<file_language>
{
protected:
    /// The options of a top design that writes the file "top" in the test's language.
    static std::string into_top(std::string const & more = "") { return "LBX_FILE=top" + GetParam().ending + more; }

    /// Whoever uses the file of a design with errors reads of them; in Verilog only when it is simulated.
    static void expect_error_in_text(std::string const & complaints, std::string const & error)
    {
        if (GetParam().ending == ".v")
            EXPECT_EQ(complaints, "");
        else
            EXPECT_NE(complaints.find(error), std::string::npos) << complaints;
    }
};

/// All files below the working folder, by name.
inline std::vector<std::string> files_of_run()
{
    std::vector<std::string> files;
    for (auto const & entry : fs::recursive_directory_iterator("."))
        if (entry.is_regular_file())
            files.push_back(entry.path().lexically_relative(".").string());
    std::sort(files.begin(), files.end());
    return files;
}

/// Those of one language, as arguments of a command.
inline std::string files_of_run(std::string const & ending)
{
    std::string list;
    for (auto const & file : files_of_run())
        if (file.ends_with(ending))
            list += " " + file;
    return list;
}

/// The files of a run, each behind a line with its name, then what went to the shared stream and what was posted.
inline std::string left_by(design & top, std::string const & shared, std::string const & comment)
{
    std::string text;
    auto const add = [&](std::string const & name, std::string const & part) {
        text += comment + "==== " + name + " ====\n" + without_legal_notice(top, part);
    };
    for (auto const & file : files_of_run())
        add(file, file_text(file));
    if (!shared.empty())
        add("the shared stream", shared);
    for (auto const & message : top.messages())
        add("posted", comment + message + "\n");
    return text;
}

/// Runs `top` and compares all that it leaves with the golden file of the name and the language.
inline ::testing::AssertionResult leaves_golden(design & top, std::string const & golden, file_language const & in)
{
    auto const shared = top.run();
    return matches_golden(fs::path(LBX_SOURCE_DIR) / "tests/writers/golden" / (golden + in.ending),
                          left_by(top, shared, in.comment));
}

/// The same, where a run leaves one file: that file alone. In QHDL children have files of their own.
inline ::testing::AssertionResult shows_golden(design & top, std::string const & golden, file_language const & in)
{
    if (in.ending == ".tdf")
        return leaves_golden(top, golden, in);
    return writes_golden(top, golden + in.ending, "top" + in.ending);
}

/// What designs instantiate and no run writes: models, and in QHDL the headers of the functions, one in a line.
struct outside_cell
{
    std::string verilog;
    std::string vhdl;
    std::string function;
};

inline void add_cells(qhdl::reader & designs, outside_cell const & cell)
{
    std::istringstream functions(cell.function);
    for (std::string line; std::getline(functions, line);)
        designs.add_cell(line);
}

/// What Icarus Verilog says of the files; "" when it is content.
inline std::string verilog_complaints(std::string const & files, std::string const & unit,
                                      std::string const & warnings = "-Wall -Wno-timescale")
{
    auto const result = run_command("iverilog -g2005 " + warnings + " -s " + unit + " -o top.vvp" + files);
    std::istringstream lines(result.text);
    std::string rest = result.status == 0 ? "" : "not compiled\n";
    for (std::string line; std::getline(lines, line);)
        if (!line.ends_with("is coerced to inout.")) // an input with a default is declared tri0 or tri1
            rest += line + "\n";
    return rest;
}

/// What GHDL says of the files, and of the unit when it begins to run.
inline std::string vhdl_complaints(std::string const & files, std::string const & unit)
{
    auto const work = fs::path("ghdl_work");
    fs::create_directory(work);
    std::string const options = " --std=93c --workdir=" + work.string() + " ";
    std::string rest;
    for (auto const & command : {"-i" + options + files, "-m" + options + unit,
                                 "-r" + options + unit + " --ieee-asserts=disable-at-0 --assert-level=error"}) {
        auto const result = run_command("ghdl " + command);
        rest += result.text + (result.status == 0 ? "" : "not accepted: ghdl " + command + "\n");
    }
    fs::remove_all(work);
    fs::remove("e~" + unit + ".o");
    fs::remove(unit);
    return rest;
}

/// What the reader says of the files, and what Icarus Verilog says of them in Verilog.
inline std::string qhdl_complaints(std::string const & unit, outside_cell const & cell)
{
    try {
        qhdl::reader designs;
        add_cells(designs, cell);
        for (auto const & file : files_of_run())
            if (file.ends_with(".tdf"))
                designs.add(fs::path(file).filename().string(), file_text(file));
        std::ofstream("translated.v") << designs.verilog() << cell.verilog;
    } catch (std::exception const & wrong) {
        return wrong.what();
    }
    // The reader knows which inputs may stay open.
    auto const complaints = verilog_complaints(" translated.v", unit, "-Wall -Wno-timescale -Wno-portbind");
    fs::remove("translated.v");
    return complaints;
}

/// What a tool for the language says of its files below the working folder, with `unit` as the top.
inline std::string complaints_of_compiler(file_language const & in, outside_cell const & cell = {},
                                          std::string const & unit = "top")
{
    if (in.ending == ".tdf")
        return qhdl_complaints(unit, cell);
    if (auto const & model = in.ending == ".v" ? cell.verilog : cell.vhdl; !model.empty())
        std::ofstream("outside" + in.ending) << model;
    auto const files = files_of_run(in.ending);
    return in.ending == ".v" ? verilog_complaints(files, unit) : vhdl_complaints(files, unit);
}

} // namespace gnl_test

/// Instantiates a suite of tests that derive from `in_each_language`.
#define IN_EACH_LANGUAGE(SUITE)                                                                                        \
    INSTANTIATE_TEST_SUITE_P(In, SUITE, ::testing::ValuesIn(gnl_test::file_languages),                                 \
                             [](auto const & of) { return std::string(of.param.name); })

/// Ends a test that derives from `in_each_language` as skipped, visibly, without the tool for its language.
#define SKIP_WITHOUT_COMPILER() SKIP_WITHOUT(GetParam().ending == ".vhd" ? "ghdl" : "iverilog")

/// The run leaves the golden file, and a tool for the language reads its text if there is one.
#define EXPECT_GOLDEN_THAT_COMPILES(TOP, GOLDEN)                                                                       \
    EXPECT_TRUE(gnl_test::leaves_golden(TOP, GOLDEN, GetParam()));                                                     \
    SKIP_WITHOUT_COMPILER();                                                                                           \
    EXPECT_EQ(gnl_test::complaints_of_compiler(GetParam()), "")
