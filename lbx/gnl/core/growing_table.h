#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace gnl_detail {

/// Numbered rows, for tables of two rows as well as of millions: the first rows stand in a vector, all others in blocks
/// of one size. A big table is never copied to grow, and no more than a block of it lies idle.
template <class ROW> class growing_table
{
public:
    std::size_t size() const { return m_size; }
    ROW & operator[](std::size_t at)
    {
        return at < rows_in_block ? m_first[at] : m_blocks[at / rows_in_block - 1][at % rows_in_block];
    }
    ROW const & operator[](std::size_t at) const
    {
        return at < rows_in_block ? m_first[at] : m_blocks[at / rows_in_block - 1][at % rows_in_block];
    }
    void push_back(ROW const & row)
    {
        if (m_size < rows_in_block)
            m_first.push_back(row);
        else {
            if (m_size % rows_in_block == 0)
                m_blocks.push_back(std::make_unique<ROW[]>(rows_in_block));
            (*this)[m_size] = row;
        }
        ++m_size;
    }

private:
    static constexpr std::size_t rows_in_block = 1024;

    std::vector<ROW> m_first;
    std::vector<std::unique_ptr<ROW[]>> m_blocks;
    std::size_t m_size = 0;
};

} // namespace gnl_detail
