#pragma once

#include <atomic>

#include <zelplatform/xmlpp/lookup_record.h>

namespace xmlpp
{

/// Hands the questions of nodes to the record of the thread.
struct LookupRecorder
{
    static std::atomic<int> s_living;

    /// Keeps the question when a record of this thread is listening.
    [[gnu::noinline, gnu::cold]] static void keep(ELookup kind, const CXmlNode& node, const char* name, bool isFound);
};

/// Notes a question. Readers ask hundreds of them in a microsecond: one load, as long as no record lives.
inline void noteLookup(ELookup kind, const CXmlNode& node, const char* name, bool isFound)
{
    if (LookupRecorder::s_living.load(std::memory_order_relaxed) != 0)
        LookupRecorder::keep(kind, node, name, isFound);
}

} // namespace xmlpp
