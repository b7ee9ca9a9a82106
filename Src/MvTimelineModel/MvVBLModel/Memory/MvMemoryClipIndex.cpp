#include "MvMemoryClipIndex.h"

#include <algorithm>
#include <iterator>

namespace {
// Big enough that a row of a hundred thousand clips has a few hundred chunks, small enough that
// moving the entries of one chunk costs less than a cache miss or two.
constexpr size_t kChunkSize = 256;

bool keyLess(const MvMemoryClipIndex::Entry& entry, const MvMemoryClipIndex::Key& key)
{
    return entry.key < key;
}
}

MvMemoryClipIndex::Iterator& MvMemoryClipIndex::Iterator::operator++()
{
    if (++m_place == (*m_chunks)[m_chunk].size()) {
        ++m_chunk;
        m_place = 0;
    }
    return *this;
}

MvMemoryClipIndex::Iterator& MvMemoryClipIndex::Iterator::operator--()
{
    if (m_place == 0) {
        --m_chunk;
        m_place = (*m_chunks)[m_chunk].size();
    }
    --m_place;
    return *this;
}

size_t MvMemoryClipIndex::chunkFor(const Key& key) const
{
    const auto it = std::lower_bound(m_lastKeys.begin(), m_lastKeys.end(), key);
    return it == m_lastKeys.end() ? m_lastKeys.size() - 1 : size_t(it - m_lastKeys.begin());
}

MvMemoryClipIndex::Iterator MvMemoryClipIndex::lowerBound(const Key& key) const
{
    if (m_chunks.empty() || m_lastKeys.back() < key)
        return end();
    const size_t chunk = chunkFor(key);
    const std::vector<Entry>& entries = m_chunks[chunk];
    const auto at = std::lower_bound(entries.begin(), entries.end(), key, keyLess);
    return Iterator(&m_chunks, chunk, size_t(at - entries.begin()));
}

bool MvMemoryClipIndex::contains(const Key& key, const MvMemoryClip* clip) const
{
    const Iterator it = lowerBound(key);
    return it != end() && it->key == key && it->clip == clip;
}

void MvMemoryClipIndex::insert(const Key& key, MvMemoryClip* clip)
{
    ++m_size;
    if (m_chunks.empty()) {
        m_chunks.push_back({ Entry { key, clip } });
        m_lastKeys.push_back(key);
        return;
    }
    const size_t chunk = chunkFor(key);
    std::vector<Entry>& entries = m_chunks[chunk];
    entries.insert(std::lower_bound(entries.begin(), entries.end(), key, keyLess), Entry { key, clip });
    m_lastKeys[chunk] = entries.back().key;
    splitIfFull(chunk);
}

void MvMemoryClipIndex::erase(const Key& key)
{
    if (m_chunks.empty())
        return;
    const size_t chunk = chunkFor(key);
    std::vector<Entry>& entries = m_chunks[chunk];
    const auto at = std::lower_bound(entries.begin(), entries.end(), key, keyLess);
    if (at == entries.end() || at->key != key)
        return;
    entries.erase(at);
    --m_size;
    if (!entries.empty())
        m_lastKeys[chunk] = entries.back().key;
    dropIfEmpty(chunk);
}

void MvMemoryClipIndex::rekey(const Key& from, const Key& to)
{
    if (m_chunks.empty())
        return;
    const size_t chunk = chunkFor(from);
    std::vector<Entry>& entries = m_chunks[chunk];
    const auto at = std::lower_bound(entries.begin(), entries.end(), from, keyLess);
    if (at == entries.end() || at->key != from)
        return;
    const bool afterPrevious
        = at != entries.begin() ? std::prev(at)->key < to : chunk == 0 || m_lastKeys[chunk - 1] < to;
    const bool beforeNext = std::next(at) != entries.end()
        ? to < std::next(at)->key
        : chunk + 1 == m_chunks.size() || to < m_chunks[chunk + 1].front().key;
    if (afterPrevious && beforeNext) {
        at->key = to;
        m_lastKeys[chunk] = entries.back().key;
        return;
    }
    MvMemoryClip* clip = at->clip;
    erase(from);
    insert(to, clip);
}

void MvMemoryClipIndex::splitIfFull(size_t chunk)
{
    std::vector<Entry>& entries = m_chunks[chunk];
    if (entries.size() <= kChunkSize)
        return;
    std::vector<Entry> upper(entries.begin() + entries.size() / 2, entries.end());
    entries.resize(entries.size() / 2);
    m_lastKeys[chunk] = entries.back().key;
    m_lastKeys.insert(m_lastKeys.begin() + chunk + 1, upper.back().key);
    m_chunks.insert(m_chunks.begin() + chunk + 1, std::move(upper));
}

// An emptied chunk goes; a chunk left small joins a neighbour that has room, so that the row
// never holds many more chunks than its size needs.
void MvMemoryClipIndex::dropIfEmpty(size_t chunk)
{
    if (m_chunks[chunk].empty()) {
        m_chunks.erase(m_chunks.begin() + chunk);
        m_lastKeys.erase(m_lastKeys.begin() + chunk);
        return;
    }
    if (m_chunks[chunk].size() > kChunkSize / 4 || chunk + 1 >= m_chunks.size()
        || m_chunks[chunk].size() + m_chunks[chunk + 1].size() > kChunkSize)
        return;
    std::vector<Entry>& entries = m_chunks[chunk];
    std::vector<Entry>& next = m_chunks[chunk + 1];
    entries.insert(entries.end(), next.begin(), next.end());
    m_lastKeys[chunk] = entries.back().key;
    m_chunks.erase(m_chunks.begin() + chunk + 1);
    m_lastKeys.erase(m_lastKeys.begin() + chunk + 1);
}
