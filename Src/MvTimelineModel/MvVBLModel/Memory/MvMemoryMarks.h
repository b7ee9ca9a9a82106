#pragma once

#include "MvMemoryGlobal.h"

#include <cstddef>
#include <vector>

// A set of the model's objects for one command, kept as one bit per object under a dense number
// (a clip's number, an undoable object's serial): no hashing and no node per entry, so a command
// over a hundred thousand clips stays a walk over them.
class MvMemoryMarks
{
public:
    explicit MvMemoryMarks(std::size_t count = 0)
        : m_bits(count, false)
    {
    }

    bool isMarked(std::size_t number) const { return number < m_bits.size() && m_bits[number]; }
    // Marks the number; true when it was marked already.
    bool mark(std::size_t number)
    {
        if (number >= m_bits.size())
            m_bits.resize(number + 1, false);
        const bool was = m_bits[number];
        m_bits[number] = true;
        return was;
    }
    void unmark(std::size_t number)
    {
        if (number < m_bits.size())
            m_bits[number] = false;
    }

private:
    std::vector<bool> m_bits;
};
