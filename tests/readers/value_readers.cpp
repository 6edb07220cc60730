#include <support/made_certificates.h>
#include <zelmodel/data_size.h>
#include <zelplatform/crypto/crypto.h>
#include <zelplatform/datetime/datetime.h>
#include <zelplatform/io/io.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xml/xml.h>

#include "reader.h"
#include "xml_forms.h"

namespace readers
{
namespace
{

template <class T>
std::string rewriteNumber(const std::string& text)
{
    return util::toStr(util::fromStr<T>(text));
}

template <class T>
Reader numberReader(const char* name, std::vector<std::string> samples)
{
    return {std::string("util.fromStr.") + name, rewriteNumber<T>, std::move(samples)};
}

std::string tellFraction(const std::string& text)
{
    return util::toStr(util::fromStr<double>(text), 3);
}

std::string rewriteSize(const std::string& text)
{
    return util::toStr(static_cast<const unsigned long&>(zelplatform::CSize::FromStr(text)));
}

std::string rewriteDate(const std::string& text)
{
    using datetime::CDateTime;
    return CDateTime::fromString(text, CDateTime::DefaultFormat).toStdString(CDateTime::DefaultFormat);
}

std::string rewriteEndpoints(const std::string& text)
{
    using io::net::CNetworkEndpoint;
    return CNetworkEndpoint::MergeToString(CNetworkEndpoint::ParseFromString(text));
}

std::string rewriteBase64(const std::string& text)
{
    const auto bytes = util::fromBase64(text);
    return util::toBase64(bytes.data(), bytes.size());
}

std::string rewriteWide(const std::string& text)
{
    return CUtf8String::FromWide(CUniString::FromUtf8(CUtf8String(text))).str();
}

std::string tellCertificate(const std::string& text)
{
    return crypto::openssl::CX509::FromPem(text)->GetSHA256Fingerprint();
}

std::string tellPrivateKey(const std::string& text)
{
    return crypto::openssl::CEvpPrivateKey::FromPem(text)->GetNative() != nullptr ? "a key" : "no key";
}

Readers numberReaders()
{
    return {
        numberReader<int>("int", {"0", "-2147483648", "2147483647"}),
        numberReader<long>("long", {"0", "-9223372036854775808"}),
        numberReader<unsigned>("unsigned", {"0", "4294967295"}),
        numberReader<unsigned long>("ulong", {"7", "18446744073709551615"}),
        numberReader<std::uint16_t>("uint16", {"65535"}),
        numberReader<std::uint8_t>("uint8", {"0", "255"}),
        numberReader<bool>("bool", {"true", "false", "1", "0"}),
        {"util.fromStr.double", tellFraction, {"0", "1.5", "-2.25"}, EWritten::ReadsBack},
    };
}

} // namespace

Readers valueReaders()
{
    const auto key = zelmodel_test::makeEcKey();
    const std::string keyPem = zelmodel_test::pemOf(key.get());
    const std::string certificatePem = zelmodel_test::pemOf(zelmodel_test::makeCertificate(key.get(), "server").get());

    auto readers = numberReaders();
    const Readers others{
        {"CSize.FromStr", rewriteSize, {"0", "10", "1.5 k", "10GB", "15.99 EB"}},
        {"CDateTime.fromString", rewriteDate, {"03/07/2024 13:05:09", "12/31/9999 23:59:59"}},
        {"guid_t.FromAStr",
         [](const std::string& text) { return guid::guid_t::FromAStr(text).ToAStr(); },
         {"6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab", "{6B1F2C3D-0A1B-4C2D-8E3F-0123456789AB}"}},
        {"CNetworkEndpoint.ParseFromString", rewriteEndpoints, {"", "backup:9392", "a:1;[::1]:65535"}},
        {"util.fromBase64", rewriteBase64, {"", "AA==", "AAE=", "AAEC"}},
        {"CUniString.FromUtf8", rewriteWide, {"plain", "h\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"}},
        {"CX509.FromPem", tellCertificate, {certificatePem}, EWritten::Words},
        {"CEvpPrivateKey.FromPem", tellPrivateKey, {keyPem}, EWritten::Words},
        {"CXmlDocument.Unserialize",
         [](const std::string& text) { return xmlpp::CXmlDocument::Unserialize(text).Serialize(); },
         {"<a b=\"1\"><!-- c --><d>&lt;&#233;</d></a>"}},
        {"xml.TiXmlParseExc",
         [](const std::string& text) { return xml::TiXmlSerialize(xml::TiXmlParseExc(text)); },
         {"<a b=\"1\"/><c>text</c>"}},
        // A format has no writer; only what it makes of any text counts.
        {"util.str_format",
         [](const std::string& text) { return util::str_format(text, text, "%1%2"); },
         {"[%1] of [%2], 100%"},
         EWritten::Words},
    };
    readers.insert(readers.end(), others.begin(), others.end());
    return readers;
}

} // namespace readers
