#include <cstdint>
#include <optional>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <zelmodel/structs/gfs/gfs_policy_info.h>

#include "bindings.h"
#include "values.h"

namespace python
{
namespace
{

namespace py = pybind11;
using namespace py::literals;
namespace gfs = zelplatform::model::structs::gfs;

/// One rule: the library's three differ in names only.
struct Rule
{
    bool isEnabled;
    std::int32_t keepCount;
    std::optional<Moment> begin;
    std::int32_t desiredTime;
};

template <class TTraits>
std::optional<Rule> ruleOf(const std::optional<gfs::SGfsPolicyInfoBase<TTraits>>& rule)
{
    if (!rule)
        return std::nullopt;
    const auto& begin = rule->beginTimeUtc;
    const bool isEmpty = begin == datetime::CDateTime(true);
    return Rule{rule->isEnabled, rule->keepCount, isEmpty ? std::nullopt : std::optional<Moment>(Moment{begin}),
                rule->desiredTime};
}

} // namespace

void bindGfs(py::module_& module)
{
    using gfs::SGfsPolicyInfo;
    py::class_<Rule>(module, "GfsRule", "How many restore points of a period are kept.")
        .def_readonly("enabled", &Rule::isEnabled, "Whether the rule is in force.")
        .def_readonly("keep_count", &Rule::keepCount, "Weeks, months or years for which points are kept.")
        .def_readonly("begin", &Rule::begin, "From when the rule is effective, in UTC, or None.")
        .def_readonly("desired_time", &Rule::desiredTime, "The slot of the period; its meaning is the scheduler's.");
    py::class_<SGfsPolicyInfo>(module, "GfsPolicy", "The long-term retention of a job: grandfather, father, son.")
        .def_readonly("enabled", &SGfsPolicyInfo::isEnabled, "Whether the policy is in force.")
        .def_property_readonly(
            "weekly", [](const SGfsPolicyInfo& policy) { return ruleOf(policy.weekly); }, "The weekly rule, or None.")
        .def_property_readonly(
            "monthly", [](const SGfsPolicyInfo& policy) { return ruleOf(policy.monthly); },
            "The monthly rule, or None.")
        .def_property_readonly(
            "yearly", [](const SGfsPolicyInfo& policy) { return ruleOf(policy.yearly); }, "The yearly rule, or None.")
        .def(
            "to_xml",
            [](const SGfsPolicyInfo& policy, bool isShortNames) { return Text{policy.toXmlString(isShortNames)}; },
            py::kw_only(), "short_names"_a = true,
            "The document as the library writes it, in the short or the long names.");
}

} // namespace python
