#include <zelmodel/keys.h>
#include <zelmodel/zelmodel.h>

#include "assigning.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

SQorServer server()
{
    SQorServer made;
    made.name = longText("server");
    made.dnsName = longText("server.example");
    made.description = longText("description");
    made.version = longText("13.0");
    made.platformName = longText("platform");
    made.endpoints = {{"backup.example", 9392}, {"::1", 1}};
    made.isTrusted = true;
    return made;
}

SQorServer otherServer()
{
    auto made = server();
    made.name = longText("other");
    made.description.clear();
    made.endpoints = {{std::string(40, 'h'), 1}, {"b", 2}, {"c", 3}};
    return made;
}

std::string bytesOf(const SQorServer& record)
{
    io::mem_stream_tt memory;
    io::binary_stream_tt stream(memory);
    record.Serialize(stream);
    return {memory.buffer().begin(), memory.buffer().end()};
}

Operations serverOperations()
{
    const Tell<SQorServer> tell = bytesOf;
    const auto unserialize = [bytes = bytesOf(otherServer())](SQorServer& target) {
        io::mem_stream_tt memory(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
        io::binary_stream_tt stream(memory);
        target.Unserialize(stream);
    };
    return changing<SQorServer>("SQorServer", server, tell, {{"Unserialize", unserialize}}) +
           asking<SQorServer>("SQorServer", server, {{"Serialize", tell}}) +
           assigningFields<SQorServer>("SQorServer", server, otherServer, tell);
}

Operations ownershipOperations()
{
    const Tell<COwnershipInfo> tell = [](const COwnershipInfo& info) {
        return EOwnershipType::ToStr(info.GetType()) + info.GetMode();
    };
    // A mode of this length is of its category.
    return assigning<COwnershipInfo>(
               "COwnershipInfo", [] { return COwnershipInfo(); },
               [] { return COwnershipInfo(EOwnershipType::QOR, longText("QOR.")); }, tell) +
           asking("EOwnership", {{"ToFriendlyName", [](const Nothing&) {
                                      return EOwnershipType::ToFriendlyName(EOwnershipType::PEL) +
                                             EOwnershipMode::ToFriendlyName(EOwnershipMode::QOR_CatchAll);
                                  }}});
}

Operations variantOperations()
{
    const Tell<SSqlVariant> tell = [](const SSqlVariant& variant) { return variant.ToXmlStr(); };
    const Make<SSqlVariant> make = [] { return SSqlVariant{7, longText()}; };
    return asking<SSqlVariant>("SSqlVariant", make, {{"ToXmlStr", tell}}) +
           assigningFields<SSqlVariant>(
               "SSqlVariant", make,
               [] {
                   return SSqlVariant{8, longText("other") + longText()};
               },
               tell);
}

Operations certificateOperations()
{
    return asking("SCertificate", {{"ToOstraCertificateContainer", [](const Nothing&) {
                                        const auto container = SCertificate().ToOstraCertificateContainer();
                                        return std::string(container->certificate ? "a certificate" : "none");
                                    }}});
}

} // namespace

Operations recordOperations()
{
    return serverOperations() + ownershipOperations() + variantOperations() + certificateOperations();
}

} // namespace zelmodel_test
