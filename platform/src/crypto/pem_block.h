#pragma once

#include <string_view>

namespace crypto::openssl
{

/// A block of a PEM text: what stands in its BEGIN line, and what stands between that line and the END line.
struct PemBlock
{
    std::string_view label;
    std::string_view body;
};

/// The first block with a label that is wanted, as a part of the text. Throws, without quoting the text, when it is
/// longer than 1 MiB or when the wanted BEGIN is missing or is not followed by the END of its label.
PemBlock findPemBlock(std::string_view text, bool (*isWanted)(std::string_view label));

} // namespace crypto::openssl
