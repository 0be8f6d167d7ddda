// Files that are found where a design is to be written: any bytes, alone and behind the lines that a file of ours
// begins with. Only a file that begins and ends as ours do may count as valid.

#include "fuzz_design.h"

#include "lbx/gnl/core/case_folding.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

namespace {

constexpr char header[] = "fuzzed WIDTH=8";

class judged_design : public fuzz_design
{
public:
    using fuzz_design::fuzz_design;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override { versions["mod"] = "1.0"; }
    static void use_language(int language) { set_gen_language(language); }
};

/// The file that is judged; it goes when the process ends.
class judged_file
{
public:
    judged_file()
        : m_name(
            (std::filesystem::temp_directory_path() / ("lbx-fuzz-" + std::to_string(::getpid()) + ".tdf")).string())
    {
    }
    ~judged_file() { std::filesystem::remove(m_name); }
    std::string const & name() const { return m_name; }
    void put(std::string const & text) const { std::ofstream(m_name, std::ios::binary) << text; }

private:
    std::string m_name;
};

void judge(std::string const & text, bool fixed_instance)
{
    static judged_file const file;
    judged_design top(fixed_instance ? "LBX_MODULE_PREFIX=pre,LBXI_INSTANCE_NAME=inst" : "");
    file.put(text);
    int const answer = top.are_files_same(file.name(), header);
    FUZZ_CHECK(answer >= 1 && answer <= 4);
    FUZZ_CHECK(top.are_files_same(file.name(), header) == answer);
    if (answer != 1)
        return;
    FUZZ_CHECK(gnl_detail::equal_folded(text.substr(2, sizeof header - 1), header));
    // The last line, with a line end of either kind, or with an empty line behind it.
    FUZZ_CHECK(text.ends_with("VALID FILE\n") || text.ends_with("VALID FILE\r\n") || text.ends_with("VALID FILE\n\n"));
    for (std::size_t const cut : {std::size_t{1}, std::size_t{2}, std::size_t{13}}) {
        file.put(text.substr(0, text.size() - cut));
        FUZZ_CHECK(top.are_files_same(file.name(), header) != 1
                   || text.substr(0, text.size() - cut).ends_with("FILE\n"));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size == 0)
        return 0;
    std::string const text(reinterpret_cast<char const *>(data) + 1, size - 1);
    judged_design::use_language(data[0] & 3);
    bool const fixed_instance = (data[0] & 4) != 0;
    if ((data[0] & 8) != 0)
        judge(text, fixed_instance);
    else
        judge("--" + std::string(header) + "\n--" + judged_design("").dump_version_header() + "\n" + text,
              fixed_instance);
    return 0;
}
