#pragma once

#include <string>
#include <vector>

namespace zelmodel_test
{

/// Runs the command `openssl` with the arguments, gives it the text on standard input and returns its standard output.
/// Throws when it cannot be run or does not end well.
std::string openssl(std::vector<std::string> arguments, const std::string& input = {});

/// A fresh self-signed certificate of the name, as PEM, with a key as `-newkey` takes it.
std::string freshCertificate(const std::string& name, const std::vector<std::string>& key = {"ed25519"});

/// The SHA-256 fingerprint of a PEM certificate as the command tells it, without its colons.
std::string fingerprintByCommand(const std::string& pem);

} // namespace zelmodel_test
