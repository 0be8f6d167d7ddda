#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/parameters/parameter_messages.h"

void GNL_GENERATOR::set_vector_parameter_widths()
{
    for (GNL_PARAMETER * parameter : registry().declared_parameters()) {
        if (!parameter->is_vector_parameter())
            continue;
        auto & vector = static_cast<GNL_PARAMETER_VECTOR &>(*parameter);
        if (vector.get_width() != -1 || vector.get_width_parameter_name().empty())
            continue;
        int const width = evaluate_port_width_expression(vector.get_width_parameter_name().c_str());
        if (width < 0) {
            gnl_detail::report<gnl_detail::parameter_message::illegal_vector_width>(*this, vector.get_name());
            continue;
        }
        vector.set_width(width);
        if (vector.has_unassigned_value())
            vector.assign_unassigned_value();
    }
}
