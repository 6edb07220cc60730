#include <iostream>

#include <zelmodel/repositories.h>
#include <zelplatform/xmlpp/xmlpp.h>

using namespace zelplatform::model;

int main()
{
    // How an object storage is reached. The record and its document hold the secret in clear.
    structs::SAmazonS3SpecificParams storage;
    storage.endpoint.apiEndpoint = "https://s3.storage.example";
    storage.credentials.accessKeyId = "EXAMPLEKEYID";
    storage.credentials.secretAccessKey = "not-a-real-secret";
    const auto document = storage.ToXmlStr();
    const auto holdsSecret = document.find("not-a-real-secret") != std::string::npos;
    std::cout << "document: " << (holdsSecret ? "secret" : "may be shown") << '\n';

    // What may go to a log instead.
    std::cout << storage.ToLogStr() << '\n';
    const auto copy = structs::SAmazonS3SpecificParams::FromXmlStr(document);
    std::cout << (copy.credentials.secretAccessKey == storage.credentials.secretAccessKey ? "reads back\n" : "lost\n");

    // How long its backups cannot be changed, as another document encloses it.
    const auto repository = xmlpp::CXmlDocument::Unserialize(
        "<Repository><ImmutabilitySettings IsEnabled='true' IntervalDays='30'/></Repository>");
    const auto root = repository.GetRootNode();
    if (structs::SObjectStorageImmutabilitySettings::HasXmlNode(root))
    {
        const auto settings = structs::SObjectStorageImmutabilitySettings::FromXml(root);
        std::cout << "immutable for " << settings.intervalDays << " days, "
                  << ERepositoryImmutabilityMode::ToStr(settings.mode) << '\n';
    }
}
