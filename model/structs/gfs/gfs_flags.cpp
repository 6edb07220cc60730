#include <zelmodel/structs/gfs/gfs_flags.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs::gfs
{
namespace
{

constexpr auto LongNames = detail::enumRows<EGfsFlags::type>({
    {EGfsFlags::None, "None"},
    {EGfsFlags::Weekly, "Weekly"},
    {EGfsFlags::Monthly, "Monthly"},
    {EGfsFlags::Yearly, "Yearly"},
});

constexpr auto ShortNames = detail::enumRows<EGfsFlags::type>({
    {EGfsFlags::None, "N"},
    {EGfsFlags::Weekly, "W"},
    {EGfsFlags::Monthly, "M"},
    {EGfsFlags::Yearly, "Y"},
});

} // namespace

std::string EGfsFlags::toString(type value, bool isShort)
{
    if (const auto text = detail::findText(isShort ? ShortNames : LongNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert value [%1] to [%2] string.", util::toStr(value),
                           isShort ? "short" : "long");
}

std::vector<EGfsFlags::type> CGfsFlags::enumerate() const
{
    std::vector<EGfsFlags::type> flags;
    for (const auto flag : {EGfsFlags::Weekly, EGfsFlags::Monthly, EGfsFlags::Yearly})
    {
        if (isSet(flag))
            flags.push_back(flag);
    }
    return flags;
}

std::string CGfsFlags::toString() const
{
    std::vector<std::string> names;
    for (const auto flag : enumerate())
        names.push_back(EGfsFlags::toString(flag, false));
    return util::str_join(names, ", ");
}

} // namespace zelplatform::model::structs::gfs
