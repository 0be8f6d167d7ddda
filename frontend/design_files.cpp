#include "design_files.h"

#include "gnl_primitive.h"

#include <set>
#include <system_error>

namespace lbxgen {

namespace fs = std::filesystem;

namespace {

fs::path place_of(fs::path const & file)
{
    std::error_code unknown;
    return fs::absolute(file, unknown).lexically_normal();
}

/// A file is replaced by moving a new one onto it, which has another number while the old one is still there.
bool same_file(struct ::stat const & a, struct ::stat const & b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size
           && a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/// The walk over the designs of a finished run.
class results_walk
{
public:
    explicit results_walk(files_before const & before)
        : m_before(before)
    {
    }
    void visit(GNL_GENERATOR & design);
    run_results take() { return std::move(m_results); }

private:
    void visit_below(GNL_GENERATOR & design);
    void add_files(GNL_GENERATOR & design);
    void add_file(std::string const & file, bool written)
    {
        if (m_seen_files.insert(place_of(file)).second)
            m_results.files.push_back({file, written});
    }

    files_before const & m_before;
    run_results m_results;
    std::set<fs::path> m_seen_files;
    std::set<std::string, LESS_C_STRING> m_seen_boxes;
};

void results_walk::visit(GNL_GENERATOR & design)
{
    if (dynamic_cast<GNL_PRIMITIVE *>(&design))
        return;
    if (design.get_parent())
        m_results.subdesigns.push_back(design.get_name());
    if (design.is_primitive()) {
        auto const entity = design.get_entity_name().empty() ? design.get_name() : design.get_entity_name();
        if (m_seen_boxes.insert(entity).second)
            m_results.black_boxes.push_back(entity);
        return;
    }
    visit_below(design);
    add_files(design);
}

void results_walk::visit_below(GNL_GENERATOR & design)
{
    if (design.is_master_array())
        for (int i = 0; i < design.get_array_width(); ++i)
            if (auto * slice = design.get_array_slice(i); slice != &design)
                visit(*slice);
    std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> subdesigns;
    design.get_subdesign_generator_objects(subdesigns);
    for (auto const & entry : subdesigns)
        visit(*entry.second);
}

/// A design's file has the name it tells, or stands under its entity in another language.
void results_walk::add_files(GNL_GENERATOR & design)
{
    std::string const file = design.get_file_name();
    if (file.empty())
        return;
    if (m_before.has_written(file))
        add_file(file, true);
    for (char const * ending : {".v", ".vhd", ".tdf"})
        if (auto const side = fs::path(file).replace_filename(design.get_entity_name() + ending).string();
            m_before.has_written(side))
            add_file(side, true);
    bool const has_own_file =
        !design.get_parent() || !design.generate_single_output_file() || GNL_ELEMENT::get_gen_language() == GNL_QHDL;
    std::error_code unknown;
    if (has_own_file && !design.generate_file() && design.is_supported() && fs::is_regular_file(file, unknown))
        add_file(file, false);
}

} // namespace

files_before::files_before(GNL_GENERATOR & top)
{
    note_folder(top.get_directory_path());
    if (fs::path const file = top.get_file_name(); file.has_parent_path())
        note_folder(file.parent_path());
    else
        note_folder(".");
}

void files_before::note_folder(fs::path const & folder)
{
    std::error_code unreadable;
    for (auto const & entry : fs::directory_iterator(folder.empty() ? "." : folder, unreadable)) {
        struct ::stat status
        {
        };
        if (::stat(entry.path().c_str(), &status) == 0 && S_ISREG(status.st_mode))
            m_files[place_of(entry.path())] = status;
    }
}

bool files_before::has_written(std::string const & file) const
{
    struct ::stat status
    {
    };
    if (::stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    auto const known = m_files.find(place_of(file));
    return known == m_files.end() || !same_file(known->second, status);
}

run_results results_of(GNL_GENERATOR & top, files_before const & before)
{
    results_walk walk(before);
    walk.visit(top);
    return walk.take();
}

} // namespace lbxgen
