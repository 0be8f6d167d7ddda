#pragma once

// What the tests of all subsystems share: a fresh folder for each test, a generator whose body is a lambda, its run and
// its messages.

#include "gnl.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace gnl_test {

namespace fs = std::filesystem;

/// Reads a file whole; "" if it is not there.
inline std::string file_text(fs::path const & path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

/// A fresh working folder for each test, and a clean error count and language.
class in_folder : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

private:
    fs::path m_home;
    fs::path m_folder;
};

/// The same for tests with a parameter.
template <class PARAMETER>
class in_folder_with_parameter : public in_folder, public ::testing::WithParamInterface<PARAMETER>
{
};

/// A generator whose ports are made on the heap and whose body is a lambda; `dump_hdl` follows the body unless
/// `dump` is false.
class design : public GNL_GENERATOR
{
public:
    explicit design(GNL_GENERATOR * parent, std::string const & name = "top", char const * text = "",
                    int array_width = 0)
        : GNL_GENERATOR(parent, name, text, array_width)
    {
    }

    GNL_PORT_INPUT & input(std::string const & name, int width = 0, int default_value = -1)
    {
        auto & port = *new GNL_PORT_INPUT(this, name, width, 0);
        if (default_value != -1)
            port.set_default_port_value(default_value);
        return port;
    }
    GNL_PORT_OUTPUT & output(std::string const & name, int width = 0)
    {
        return *new GNL_PORT_OUTPUT(this, name, width, 0);
    }
    GNL_PORT_BIDIR & bidir(std::string const & name, int width = 0)
    {
        return *new GNL_PORT_BIDIR(this, name, width, 0);
    }
    GNL_WIRE & wire(std::string const & name, int width = 0) { return *new GNL_WIRE(this, name, width, 0); }
    GNL_PARAMETER_INTEGER & integer(std::string const & name, int default_value = -1)
    {
        m_parameters.push_back(std::make_unique<GNL_PARAMETER_INTEGER>(this, name, default_value));
        return static_cast<GNL_PARAMETER_INTEGER &>(*m_parameters.back());
    }
    GNL_PARAMETER_STRING & string(std::string const & name, std::string const & list, int default_index = -1)
    {
        m_parameters.push_back(std::make_unique<GNL_PARAMETER_STRING>(this, name, list, default_index));
        return static_cast<GNL_PARAMETER_STRING &>(*m_parameters.back());
    }
    GNL_PARAMETER_VECTOR & vector(std::string const & name, int default_value, int width)
    {
        m_parameters.push_back(std::make_unique<GNL_PARAMETER_VECTOR>(this, name, default_value, width));
        return static_cast<GNL_PARAMETER_VECTOR &>(*m_parameters.back());
    }
    design & child(std::string const & name, std::string const & instance, char const * text = "", int array_width = 0)
    {
        auto & made = *new design(this, name, text, array_width);
        made.set_instance_name(instance);
        return made;
    }

    /// Runs the generation; what goes to the shared stream is returned.
    std::string run()
    {
        std::ostringstream stream;
        generate_subdesign(stream);
        return stream.str();
    }
    std::string run(std::function<void(design &)> lambda)
    {
        body = std::move(lambda);
        return run();
    }

    /// "ERROR text" and so on, in posting order.
    std::vector<std::string> messages()
    {
        std::vector<std::string> texts;
        reset_msg_list();
        while (move_to_next_msg())
            texts.push_back(std::string(get_cur_msg()->get_msg_type()) + " " + get_cur_msg()->get_msg_text());
        return texts;
    }

    std::function<void(design &)> body;
    /// For an array: declares the ports and parameters of one slice.
    std::function<void(design &)> declare_slice;
    bool dump = true;

    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new design(parent, get_name());
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        if (declare_slice)
            declare_slice(slice);
        slice.body = body;
        slice.set_instance_name(instance_name);
    }

    using GNL_ELEMENT::set_gen_language;

protected:
    void rtl_body(std::ostream & stream) override
    {
        if (body)
            body(*this);
        if (dump)
            dump_hdl(stream);
    }

private:
    std::vector<std::unique_ptr<GNL_PARAMETER>> m_parameters;
};

inline void in_folder::SetUp()
{
    m_home = fs::current_path();
    auto pattern = (fs::temp_directory_path() / "lbx-gnl-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    m_folder = pattern;
    fs::current_path(m_folder);
    GNL_MSG_HANDLER().reset_error_count();
    design(nullptr, "language").set_gen_language(GNL_QHDL);
}

inline void in_folder::TearDown()
{
    fs::current_path(m_home);
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

/// The stored text of an error.
inline std::string error(std::string const & message, std::string const & cause = "", std::string const & action = "")
{
    return "ERROR GNL_INTERNAL_ERROR: " + message + (cause.empty() ? "" : " CAUSE : " + cause)
           + (action.empty() ? "" : " ACTION : " + action);
}

using texts = std::vector<std::string>;

} // namespace gnl_test
