#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// In which mode the agent is owned: a category and a mode with a dot between them. These are texts, not numbers.
struct ZELMODEL_API EOwnershipMode
{
    /// The modes, and the two categories with which they begin.
    static constexpr const char* NotSet = "NotSet";
    static constexpr const char* _CategoryQOR = "QOR";
    static constexpr const char* QOR_Job = "QOR.Job";
    static constexpr const char* QOR_Policy = "QOR.Policy";
    static constexpr const char* QOR_CatchAll = "QOR.CatchAll";
    static constexpr const char* _CategoryPEL = "PEL";
    static constexpr const char* PEL_ReadOnly = "PEL.ReadOnly";

    /// True when the mode begins with the category; no dot is needed after it, so "QORX" is of category "QOR", on
    /// purpose.
    static bool IsInclude(const std::string& category, const std::string& mode);

    /// The words for people; throws "EOwnershipMode: Failed to convert [%2] to friendly name. Unexpected value: [%1].".
    static std::string ToFriendlyName(const std::string& mode);
};

} // namespace zelplatform::model::structs
