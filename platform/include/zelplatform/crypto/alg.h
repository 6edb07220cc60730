#pragma once

namespace crypto
{

/// An encryption algorithm. Only the numbers are fixed; other numbers are carried as they are.
enum ECryptAlgs : int
{
    Local0 = 0,
    Local1 = 1
};

/// What a key set is used for. Only the numbers are fixed; other numbers are carried as they are.
enum EKeySetUsageRole : int
{
    Role0 = 0,
    Session = 1,
    Storage = 2,
    Meta = 3,
    Enterprise = 4,
    Password = 5,
    Archive = 6,
    History = 7,
    Policy = 8,
    SymmetricRndAgent = 9,
    Role10 = 10,
    Role11 = 11,
    KmsMasterPublic = 12
};

} // namespace crypto
