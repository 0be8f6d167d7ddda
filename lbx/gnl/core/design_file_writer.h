#pragma once

#include "gnl_generator.h"

class GNL_OFSTREAM;

/// Writes one design: the lines around its body, and the body. A design goes to a file of its own, to a stream that it
/// shares with the designs above it, or to a file beside a run in another language.
class GNL_GENERATOR::design_file_writer
{
public:
    explicit design_file_writer(GNL_GENERATOR & generator);

    void write_own_file();
    void write_to_shared_stream(std::ostream & stream);
    /// Writes Verilog or VHDL, whatever the run's language is.
    void write_side_file(int language);
    /// Runs the body. If it gives up, what it has written is followed by a design that reports the errors.
    void run_body(std::ostream & out);

private:
    void write_settings_lines(std::ostream & out);
    void write_fixed_instance_line(std::ostream & out);
    void write_own_head(std::ostream & out);
    void write_side_head(std::ostream & out, int language);
    void write_last_line(std::ostream & out);
    bool open(GNL_OFSTREAM & file, std::string const & path, int mode, std::string const & reported_name);
    void close(GNL_OFSTREAM & file, std::string const & path);
    void remove_unwanted_file(std::string const & path);
    void keep_resource_count();
    std::string beside_others(std::string const & ending);

    GNL_GENERATOR & m_generator;
    gnl_detail::subdesign_names & m_names;
    std::string m_settings; ///< the header line of the file, for later comparisons with it
};
