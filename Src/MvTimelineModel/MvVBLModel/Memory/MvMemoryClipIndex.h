#pragma once

#include "MvMemoryGlobal.h"

#include "MvVBLModelGlobal.h"

#include <utility>
#include <vector>

class MvMemoryClip;

// The clips of a row in order of (start, clip number), kept in sorted chunks of a few hundred
// entries: finding a place is a binary search over the chunks' last keys and one inside a chunk,
// both over contiguous memory; an insert or an erase moves entries of one chunk only. That keeps
// every operation at O(log n) and a walk over the row sequential in memory.
class MVMEMORY_EXPORT MvMemoryClipIndex
{
public:
    using Key = std::pair<qint64, int>; // start, clip number
    struct Entry
    {
        Key key;
        MvMemoryClip* clip;
    };

    // Walks the entries in order; made invalid by any insert or erase.
    class Iterator
    {
    public:
        const Entry& operator*() const { return (*m_chunks)[m_chunk][m_place]; }
        const Entry* operator->() const { return &**this; }
        Iterator& operator++();
        Iterator& operator--();
        bool operator==(const Iterator& other) const { return m_chunk == other.m_chunk && m_place == other.m_place; }
        bool operator!=(const Iterator& other) const { return !(*this == other); }

    private:
        friend class MvMemoryClipIndex;
        Iterator(const std::vector<std::vector<Entry>>* chunks, size_t chunk, size_t place)
            : m_chunks(chunks)
            , m_chunk(chunk)
            , m_place(place)
        {
        }
        const std::vector<std::vector<Entry>>* m_chunks;
        size_t m_chunk;
        size_t m_place;
    };

    int size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    Iterator begin() const { return Iterator(&m_chunks, 0, 0); }
    Iterator end() const { return Iterator(&m_chunks, m_chunks.size(), 0); }
    // The first entry whose key is not less than `key`.
    Iterator lowerBound(const Key& key) const;
    const Entry& last() const { return m_chunks.back().back(); }
    bool contains(const Key& key, const MvMemoryClip* clip) const;

    void insert(const Key& key, MvMemoryClip* clip);
    void erase(const Key& key);
    // Gives an entry a new key; in place when its neighbours stay its neighbours.
    void rekey(const Key& from, const Key& to);

private:
    // The chunk that holds `key` or where it belongs.
    size_t chunkFor(const Key& key) const;
    void splitIfFull(size_t chunk);
    void dropIfEmpty(size_t chunk);

    std::vector<std::vector<Entry>> m_chunks; // none empty
    std::vector<Key> m_lastKeys; // the last key of each chunk
    int m_size = 0;
};
