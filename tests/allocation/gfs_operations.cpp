#include "operation.h"
#include "samples.h"

#include <zelplatform/util/util.h>

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::structs::gfs;

std::string tellFlags(const CGfsFlags& flags)
{
    return flags.toString() + ' ' + util::toStr(unsigned{flags});
}

CGfsFlags yearly()
{
    return CGfsFlags(EGfsFlags::Yearly);
}

std::string logText()
{
    SGfsPoint point;
    point.gfsFlags = CGfsFlags(11);
    return point.toLogString();
}

} // namespace

Operations gfsOperations()
{
    return changing<CGfsFlags>("CGfsFlags", yearly, tellFlags,
                               {{"set", [](CGfsFlags& flags) { flags.set(EGfsFlags::Weekly); }},
                                {"clear", [](CGfsFlags& flags) { flags.clear(EGfsFlags::Yearly); }}}) +
           asking<CGfsFlags>(
               "CGfsFlags", yearly,
               {{"toString", tellFlags},
                {"enumerate", [](const CGfsFlags& flags) { return util::toStr(flags.enumerate().front()); }}}) +
           asking<SGfsPolicyInfo>(
               "SGfsPolicyInfo", allRules,
               {{"toXmlString", [](const SGfsPolicyInfo& policy) { return policy.toXmlString(true); }},
                {"equality", [](const SGfsPolicyInfo& policy) { return util::toStr(policy == allRules()); }}}) +
           asking("Gfs", {{"SGfsPoint.toLogString", [](const Nothing&) { return logText(); }},
                          {"EGfsTrackingCandidate.enumerate",
                           [](const Nothing&) { return util::toStr(EGfsTrackingCandidate::enumerate().size()); }}});
}

} // namespace zelmodel_test
