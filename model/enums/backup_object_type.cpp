#include <zelmodel/enums/backup_object_type.h>

#include <string_view>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model
{
namespace
{

constexpr const char* VmName = "VM";
constexpr const char* CustomPrefix = "ExternalPlatformValue";
constexpr std::int32_t FirstCustomValue = 100;
constexpr std::int32_t EndOfCustomValues = 200;

EBObjectType parseNumber(const std::string& text)
{
    return static_cast<EBObjectType>(util::fromStr<std::int32_t>(text));
}

} // namespace

std::string ToString(EBObjectType value)
{
    if (value == VM)
        return VmName;
    if (IsCustomValue(value))
        return CustomPrefix + util::toStr(value);
    return util::toStr(value);
}

EBObjectType ParseBObjectType(const std::string& text)
try
{
    if (text == VmName)
        return VM;
    if (util::str_is_starts_with(text, CustomPrefix))
    {
        const auto value = parseNumber(text.substr(std::string_view(CustomPrefix).size()));
        if (IsCustomValue(value))
            return value;
    }
    return parseNumber(text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert string [%1] to EBObjectType::type.", text, cause);
}

bool IsCustomValue(EBObjectType value) noexcept
{
    return value >= FirstCustomValue && value < EndOfCustomValues;
}

} // namespace zelplatform::model
