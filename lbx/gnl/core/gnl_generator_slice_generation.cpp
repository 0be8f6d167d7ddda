#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"

namespace {

/// The custom output of slices, which a master without a design of its own takes over.
struct custom_output
{
    bool verilog = false, vhdl = false, qhdl = false, inserted = false;
    std::string vhdl_library;

    void note(GNL_GENERATOR const & slice)
    {
        verilog = verilog || slice.uses_custom_verilog_output();
        vhdl = vhdl || slice.uses_custom_vhdl_output();
        qhdl = qhdl || slice.uses_custom_qhdl_output();
        inserted = inserted || slice.uses_custom_subdesign_insert_mode();
        if (!slice.get_custom_vhdl_library().empty())
            vhdl_library = slice.get_custom_vhdl_library();
    }
    void pass_to(GNL_GENERATOR & master) const
    {
        if (verilog)
            master.set_use_custom_verilog_output();
        if (vhdl)
            master.set_use_custom_vhdl_output();
        if (qhdl)
            master.set_use_custom_qhdl_output();
        if (inserted)
            master.set_custom_subdesign_insert_mode();
        if (!master.is_primitive() && !vhdl_library.empty())
            master.set_custom_vhdl_library(vhdl_library);
    }
};

/// The design of `slice` has the outputs that are read by now, in the slice or in the whole array. The common design,
/// whose body runs later, may come to have more of them.
void keep_used_outputs(GNL_GENERATOR & slice)
{
    for (GNL_PORT & port : slice.registry().ports())
        if ((port.is_output() || port.is_bidir()) && port.is_used())
            port.set_used();
}

/// Notes which outputs the design of a slice has because the array's are read. The common design marks the array's as
/// used when it drives them, and then it could not be told any more.
void mark_read_outputs(GNL_GENERATOR & slice)
{
    for (auto & port : slice.registry().ports())
        if (port.is_output() && port.is_used())
            port.set_used();
}

} // namespace

bool GNL_GENERATOR::generate_differing_slices(std::ostream & stream)
{
    bool common_design = false;
    custom_output custom;
    auto const common_settings = dump_header(false);
    for (int i = 0; i < m_state.array_width; ++i) {
        auto * const slice = get_array_slice(i);
        if (slice == this
            || (!slice->is_heterogeneous_element()
                && gnl_detail::equal_folded(common_settings, slice->dump_header(false)))) {
            common_design = true;
            continue;
        }
        if (!is_primitive()) {
            slice->set_as_heterogeneous_element();
            set_as_heterogeneous_array();
        }
        if (m_state.append_mode)
            slice->set_append_mode();
        mark_read_outputs(*slice);
        slice->generate_subdesign(stream);
        keep_used_outputs(*slice);
        slice->count_total_subdesign_resources(m_state.resource_map);
        custom.note(*slice);
    }
    if (!common_design)
        custom.pass_to(*this);
    return common_design;
}
