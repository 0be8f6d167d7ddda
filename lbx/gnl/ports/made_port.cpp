#include "made_port.h"

#include <vector>

namespace gnl_detail {

void keep_free_port(std::unique_ptr<GNL_PORT> port)
{
    static std::vector<std::unique_ptr<GNL_PORT>> ports;
    ports.push_back(std::move(port));
}

} // namespace gnl_detail
