#pragma once

#include "equivalence_proof.h"
#include "support.h"

namespace gnl_test {

/// Tests that need the tools of the proof; they end as skipped, visibly, where one is missing.
class proof_test : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        for (auto const & tool : lbx_proof::missing_tools())
            GTEST_SKIP() << tool << " is not installed";
    }
};

} // namespace gnl_test
