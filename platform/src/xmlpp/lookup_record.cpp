#include <zelplatform/xmlpp/lookup_record.h>

#include "lookups.h"

namespace xmlpp
{
namespace
{

thread_local CLookupRecord* listening = nullptr;

} // namespace

std::atomic<int> LookupRecorder::s_living{0};

void LookupRecorder::keep(ELookup kind, const CXmlNode& node, const char* name, bool isFound)
{
    if (listening != nullptr)
        listening->m_lookups.push_back({kind, node, name, isFound});
}

CLookupRecord::CLookupRecord() : m_outer(listening)
{
    listening = this;
    ++LookupRecorder::s_living;
}

CLookupRecord::~CLookupRecord()
{
    listening = m_outer;
    --LookupRecorder::s_living;
}

CLookupPause::CLookupPause() noexcept : m_paused(listening)
{
    listening = nullptr;
}

CLookupPause::~CLookupPause()
{
    listening = m_paused;
}

} // namespace xmlpp
