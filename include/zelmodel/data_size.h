#pragma once

/// Sizes of data.
/// CSize is a number of bytes that behaves as a plain 64-bit unsigned number, EDataSizeUnit the units B to EB, each
/// 1024 times the one before. CSize::FromStr reads what people write ("10", "1.5 k", "10GB"); ToNBytesStr and ToStr
/// write a size in the unit that suits it ("1.5 KB", "1.5G"). Both stand in namespace zelplatform, because not only the
/// model uses them.

#include <zelmodel/size/data_size_unit.h>
#include <zelmodel/size/size.h>
