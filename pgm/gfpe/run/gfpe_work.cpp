// SPDX-License-Identifier: MIT
#include "run/gfpe_work.h"

#include "plan/gfpe_walker.h"

#include "gfpdb/gfpdb_enums.h"

namespace {

class WORK : public GFPE_WALKER
{
public:
    WORK(const GFPE_FLOW& flow, int operation, const GFPE_RANGE& range, const GFPE_RANGE& image)
        : GFPE_WALKER(flow, range), m_counted(gfpe_counted_action(operation)), m_image(image)
    {}

    std::int64_t m_bytes = 0;

protected:
    using GFPE_WALKER::visit;
    bool visit(const GFPE_WRITE_DATA& step, const GFPE_SCOPE&, const GFPE_RANGE& where) override
    {
        const auto sent = static_cast<std::int64_t>(step.data.size());
        count(GFPDB_ACT_WRITE_DATA, step.is_of_image() ? where.common_with(m_image).length : sent);
        return true;
    }
    bool visit(const GFPE_READ_DATA& step, const GFPE_SCOPE&, const GFPE_RANGE& where) override
    {
        count(GFPDB_ACT_READ_DATA, read_part(step, where).length);
        return true;
    }
    bool visit(const GFPE_ERASE&, const GFPE_SCOPE&, const GFPE_RANGE& where) override
    {
        count(GFPDB_ACT_ERASE, where.length);
        return true;
    }

    // The pages of the usual loop follow one another: they are counted in one go.
    bool walk_pages(const GFPE_LOOP& loop, const GFPE_SCOPE& scope, const GFPE_RANGE& pages) override
    {
        if (m_counted != GFPDB_ACT_WRITE_DATA || !loop.is_only_of_image)
            return GFPE_WALKER::walk_pages(loop, scope, pages);
        m_bytes += loop.image_writes * pages.common_with(m_image).length;
        return true;
    }

private:
    void count(int action, std::int64_t bytes) { m_bytes += action == m_counted ? bytes : 0; }

    const int m_counted;
    const GFPE_RANGE m_image;
};

} // namespace

int gfpe_counted_action(int operation)
{
    switch (operation) {
    case GFPDB_OPERATION_ERASE:
        return GFPDB_ACT_ERASE;
    case GFPDB_OPERATION_PROGRAM:
        return GFPDB_ACT_WRITE_DATA;
    case GFPDB_OPERATION_VERIFY:
        return GFPDB_ACT_READ_DATA;
    default:
        return -1;
    }
}

std::int64_t gfpe_work(const GFPE_FLOW& flow, int operation, const GFPE_RANGE& range, const GFPE_RANGE& image)
{
    WORK work(flow, operation, range, image);
    work.walk(flow.operation(operation).steps);
    return work.m_bytes;
}
