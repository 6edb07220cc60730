#include <zelplatform/crypto/crypto.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "assigning.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using exc::CRuntimeExc;

// A failure without memory for its words is the lack of memory.
std::string failureOf(const std::function<void()>& call)
{
    try
    {
        call();
    }
    catch (const CRuntimeExc& failure)
    {
        std::string words = failure.what();
        for (const auto& sentence : failure.trace())
            words += '|' + sentence;
        return words;
    }
    return "nothing was thrown";
}

[[noreturn]] void failTwice()
{
    try
    {
        throw CRuntimeExc("The %1 of %2 and %3.", longText("one"), longText("two"), longText("three"));
    }
    catch (const CRuntimeExc& cause)
    {
        exc::RegenTraceExc("In front of %1.", longText("it"), cause);
    }
}

std::vector<Question<Nothing>> textQuestions()
{
    return {
        {"str_format", [](const Nothing&) { return util::str_format("%1 and %2", longText("a"), longText("b")); }},
        {"tolower", [](const Nothing&) { return util::tolower(longText("A")) + util::toupper(longText("b")); }},
        {"str_trim", [](const Nothing&) { return util::str_trim("  " + longText() + "  "); }},
        {"str_tokenize", [](const Nothing&) { return util::str_tokenize(longText(), ' ').back(); }},
        {"str_split", [](const Nothing&) { return util::str_split(longText(), " a ").back(); }},
        {"str_join",
         [](const Nothing&) {
             return util::str_join({longText("a"), longText("b")}, "; ");
         }},
        {"toStr", [](const Nothing&) { return util::toStr(-1234567890123456789) + util::toStr(1.5, 30); }},
        {"str_from_double", [](const Nothing&) { return util::str_from_double(1.25e15, 17); }},
        {"toBase64", [](const Nothing&) { return util::toBase64(longText().data(), 40); }},
        {"type_name", [](const Nothing&) { return util::type_name<crypto::CKeySetId>(); }},
        {"FromWide",
         [](const Nothing&) { return CUtf8String::FromWide(CUniString(std::wstring(40, L'\u00FC'))).str(); }},
        {"FromUtf8",
         [](const Nothing&) { return util::toStr(CUniString::FromUtf8(longText("h\xC3\xBC")).str().size()); }},
        {"CKeySetId.ToLogString", [](const Nothing&) { return crypto::CKeySetId(longText()).ToLogString(); }},
    };
}

std::vector<Question<Nothing>> failures()
{
    return {
        {"CRuntimeExc",
         [](const Nothing&) { return failureOf([] { throw CRuntimeExc(longText("a %1 as it stands")); }); }},
        {"RegenTraceExc", [](const Nothing&) { return failureOf(failTwice); }},
        {"copy",
         [](const Nothing&) {
             const CRuntimeExc failure(longText());
             auto other = failure;
             other = failure;
             return std::string(other.what());
         }},
    };
}

} // namespace

Operations textOperations()
{
    return asking("util", textQuestions()) + asking("exc", failures()) +
           assigning<std::string>(
               "string", [] { return longText(); }, [] { return longText("other") + longText(); },
               [](const std::string& text) { return text; });
}

} // namespace zelmodel_test
