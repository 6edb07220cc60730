// Feeds a reader with what the fuzzer makes up. Called as the fuzzer's own programs are, and besides:
//   --reader=NAME       the reader; needed for fuzzing
//   --list              prints the names of all readers
//   --samples=FOLDER    writes the samples of each reader into a folder of its name

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include <readers/outcome.h>

namespace
{

const readers::Reader* chosen = nullptr;

void list()
{
    for (const auto& reader : readers::all())
        std::cout << reader.name << '\n';
}

void writeSamples(const std::filesystem::path& folder)
{
    for (const auto& reader : readers::all())
    {
        const auto own = folder / reader.name;
        std::filesystem::create_directories(own);
        for (std::size_t i = 0; i < reader.samples.size(); ++i)
            std::ofstream(own / ("sample_" + std::to_string(i)), std::ios::binary) << reader.samples[i];
    }
}

bool takes(const std::string& argument, const std::string& option, std::string& value)
{
    if (argument.rfind(option, 0) != 0)
        return false;
    value = argument.substr(option.size());
    return true;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    for (int i = 1; i < *count; ++i)
    {
        const std::string argument = (*arguments)[i];
        std::string value;
        if (takes(argument, "--reader=", value))
            chosen = &readers::find(value);
        else if (takes(argument, "--samples=", value))
        {
            writeSamples(value);
            std::exit(EXIT_SUCCESS);
        }
        else if (argument == "--list")
        {
            list();
            std::exit(EXIT_SUCCESS);
        }
    }
    if (chosen == nullptr)
    {
        std::cerr << "--reader=NAME is missing; --list prints the names\n";
        std::exit(EXIT_FAILURE);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size);
    const auto fault = readers::faultOf(*chosen, input);
    if (!fault.empty())
    {
        std::cerr << chosen->name << ": " << fault << '\n';
        std::abort();
    }
    return 0;
}
