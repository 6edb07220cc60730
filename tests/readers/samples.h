#pragma once

#include <string>
#include <vector>

namespace readers
{

using Texts = std::vector<std::string>;

/// The golden documents of a folder, in the order of their names.
Texts goldenFolder(const std::string& folder);

/// Golden documents by their paths without the ending.
Texts goldenFiles(const std::vector<std::string>& paths);

/// An example of a binary form, as base64.
std::string exampleBase64(const std::string& name);

/// The same as bytes.
std::string exampleBytes(const std::string& name);

/// Any file of the examples.
std::string exampleFile(const std::string& path);

Texts operator+(Texts a, const Texts& b);

} // namespace readers
