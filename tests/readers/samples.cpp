#include "samples.h"

#include <algorithm>
#include <filesystem>

#include <support/golden.h>
#include <zelplatform/util/util.h>

namespace readers
{

using zelmodel_test::fileText;
using zelmodel_test::golden;

Texts goldenFolder(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZELMODEL_GOLDEN_DIR) + "/" + folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    Texts texts;
    for (const auto& name : names)
        texts.push_back(golden(folder + "/" + name));
    return texts;
}

Texts goldenFiles(const std::vector<std::string>& paths)
{
    Texts texts;
    for (const auto& path : paths)
        texts.push_back(golden(path + ".xml"));
    return texts;
}

std::string exampleFile(const std::string& path)
{
    return fileText(std::string(ZELMODEL_EXAMPLES_DIR) + "/" + path);
}

std::string exampleBase64(const std::string& name)
{
    return util::str_trim(exampleFile("binary/" + name + ".b64"));
}

std::string exampleBytes(const std::string& name)
{
    const auto bytes = util::fromBase64(exampleBase64(name));
    return {bytes.begin(), bytes.end()};
}

Texts operator+(Texts a, const Texts& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

} // namespace readers
