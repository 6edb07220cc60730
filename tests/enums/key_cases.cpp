#include "sweep_case.h"

#include <zelmodel/keys.h>

namespace sweep
{

using namespace zelplatform::model;

namespace
{

template <class TFrom, class TTo>
std::function<std::string(int)> numberer(TTo (*convert)(TFrom))
{
    return [convert](int value) { return std::to_string(static_cast<int>(convert(static_cast<TFrom>(value)))); };
}

} // namespace

std::vector<Case> keyCases()
{
    return {
        {"ECryptoAlgToLocal",
         numberer(&ECryptoAlg::ToLocalType),
         {},
         Letters::Exact,
         {{1, "0"}, {2, "1"}},
         {},
         "Unknown qor crypto alg: %1",
         {}},
        {"ECryptoAlgFromLocal",
         numberer(&ECryptoAlg::FromLocalType),
         {},
         Letters::Exact,
         {{0, "1"}, {1, "2"}},
         {},
         "Unknown local crypto alg: %1",
         {}},
        {"ECryptoKeyTypeLog",
         writer(&ECryptoKeyType::ToLogString),
         {},
         Letters::Exact,
         {{0, "Password"},
          {1, "Session"},
          {4, "Storage"},
          {5, "Meta"},
          {6, "Enterprise"},
          {7, "DB"},
          {8, "Archive"},
          {9, "History"},
          {10, "PublicPolicy"},
          {11, "PrivatePolicy"},
          {12, "SymmetricRndAgent"},
          {15, "KmsMasterPublic"}},
         {},
         {},
         {},
         -1,
         "Unknown (%1)"},
        // On purpose: 5 and 7 share a role, and 10 and 11 do.
        {"ECryptoKeyTypeToRole",
         numberer(&ECryptoKeyType::ToCryptoKeyRole),
         {},
         Letters::Exact,
         {{0, "5"},
          {1, "1"},
          {4, "2"},
          {5, "3"},
          {6, "4"},
          {7, "3"},
          {8, "6"},
          {9, "7"},
          {10, "8"},
          {11, "8"},
          {12, "9"},
          {15, "12"}},
         {},
         "Unable to convert ECryptoKeyType %1 to EKeySetUsageRole",
         {}},
        {"ECryptoKeyTypeFromRole",
         numberer(&ECryptoKeyType::FromCryptoKeyRole),
         {},
         Letters::Exact,
         {{1, "1"}, {2, "4"}, {3, "5"}, {4, "6"}, {5, "0"}, {6, "8"}, {7, "9"}, {8, "11"}, {9, "12"}, {12, "15"}},
         {},
         "Unable to convert EKeySetUsageRole %1 to ECryptoKeyType",
         {}},
    };
}

} // namespace sweep
