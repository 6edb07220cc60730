#include "reflected_conversions.h"

#include <magic_enum.hpp>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelmodel_bench
{

using zelplatform::model::BackupRepositoryType;
using zelplatform::model::KbBlockSize;

std::string blockSizeName(KbBlockSize::type value)
{
    const auto name = magic_enum::enum_name(value);
    if (name.empty())
        throw exc::CRuntimeExc("No name for [%1].", util::toStr(value));
    return std::string(name);
}

KbBlockSize::type blockSizeOf(const std::string& name)
{
    if (const auto value = magic_enum::enum_cast<KbBlockSize::type>(name))
        return *value;
    throw exc::CRuntimeExc("No value for [%1].", name);
}

BackupRepositoryType::type repositoryOf(const std::string& name)
{
    if (const auto value = magic_enum::enum_cast<BackupRepositoryType::type>(name, magic_enum::case_insensitive))
        return *value;
    throw exc::CRuntimeExc("No value for [%1].", name);
}

} // namespace zelmodel_bench
