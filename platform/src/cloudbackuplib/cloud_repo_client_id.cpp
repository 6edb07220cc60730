#include <zelplatform/cloudbackuplib/cloud_repo_client_id.h>

#include <zelplatform/exc/exc.h>

namespace cloudbackuplib
{
namespace
{

constexpr char CompanionMark = '|';

} // namespace

std::string CCloudRepoClientId::Serialize() const
{
    const std::string text = m_guid.ToAStr();
    return m_companion.empty() ? text : text + CompanionMark + m_companion;
}

// The empty text, elsewhere the zero GUID, names no client.
CCloudRepoClientId CCloudRepoClientId::Deserialize(const std::string& text)
{
    const auto mark = text.find(CompanionMark);
    const std::string id = text.substr(0, mark);
    if (id.empty())
        throw exc::CRuntimeExc("Client id has no GUID.");
    return CCloudRepoClientId(guid::guid_t::FromAStr(id), mark == std::string::npos ? "" : text.substr(mark + 1));
}

} // namespace cloudbackuplib
