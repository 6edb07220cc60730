#include <iostream>

#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

/// Adds a sentence of its own to whatever fails below: the form of every operation of the library.
unsigned long portOf(const xmlpp::CXmlNode& server)
try
{
    return server.GetUint64Attribute("Port");
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Port of server [%1] cannot be read.", std::string(server.GetAttribute("Name")), cause);
}

} // namespace

int main()
{
    const auto document = xmlpp::CXmlDocument::Unserialize("<Servers>\n"
                                                           "  <Server Name='a' Port='9392'/>\n"
                                                           "  <Server Name='b' Port='http'/>\n"
                                                           "</Servers>");
    for (const auto& server : document.GetRootNode().GetChildNodes("Server"))
    {
        try
        {
            const auto port = portOf(server);
            std::cout << "line " << server.GetLine() << ": port " << port << '\n';
        }
        catch (const exc::CRuntimeExc& failure)
        {
            // The whole message, and its sentences from the outside to the cause.
            std::cout << "line " << server.GetLine() << ": " << failure.what() << '\n';
            for (const auto& sentence : failure.trace())
                std::cout << "  " << sentence << '\n';
        }
    }
}
