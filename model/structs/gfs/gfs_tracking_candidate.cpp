#include <zelmodel/structs/gfs/gfs_tracking_candidate.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs::gfs
{
namespace
{

constexpr auto Names = detail::enumRows<EGfsTrackingCandidate::type>({
    {EGfsTrackingCandidate::Outdated, "Outdated"},
    {EGfsTrackingCandidate::Outlying, "Outlying"},
    {EGfsTrackingCandidate::Legacy, "Legacy"},
    {EGfsTrackingCandidate::Retained, "Retained"},
    {EGfsTrackingCandidate::Candidate, "Candidate"},
});

} // namespace

std::vector<EGfsTrackingCandidate::type> EGfsTrackingCandidate::enumerate()
{
    std::vector<type> values;
    for (const auto& row : Names)
        values.push_back(row.value);
    return values;
}

std::string EGfsTrackingCandidate::toString(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert GfsTrackingCandidate value [%1] to string.", util::toStr(value));
}

} // namespace zelplatform::model::structs::gfs
