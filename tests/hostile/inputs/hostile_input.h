#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zelmodel_test
{

/// An input of the worst kind for one reader. It grows with the size that is asked for, so that work that grows faster
/// than the input shows.
struct HostileInput
{
    std::string name;
    std::function<std::string(std::size_t size)> make; ///< about so many bytes
    std::function<void(const std::string&)> read;      ///< takes or refuses it; throws nothing
};

/// Texts of documents.
std::vector<HostileInput> hostileMarkup();

/// Values within documents: numbers, masks, windows, dates, certificates.
std::vector<HostileInput> hostileValues();

/// Binary forms and base64.
std::vector<HostileInput> hostileForms();

/// Session logs.
std::vector<HostileInput> hostileLogs();

/// All of them.
std::vector<HostileInput> hostileInputs();

/// The piece again and again, never longer than the size.
std::string repeated(const std::string& piece, std::size_t size);

/// The action, whose refusal is as good as its result.
std::function<void(const std::string&)> takingOrRefusing(std::function<void(const std::string&)> action);

} // namespace zelmodel_test
