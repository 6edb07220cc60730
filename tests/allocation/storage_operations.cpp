#include "assigning.h"
#include "samples.h"

#include <zelplatform/util/util.h>

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

SAmazonS3SpecificParams otherS3()
{
    auto params = fullS3();
    params.endpoint.apiEndpoint = longText("other") + longText();
    params.credentials.sessionToken = longText("other") + longText();
    params.endpoint.proxy->password = longText("other") + longText();
    return params;
}

std::string tellS3(const SAmazonS3SpecificParams& params)
{
    return params.ToXmlStr();
}

Operations s3Operations()
{
    using Params = SAmazonS3SpecificParams;
    return changing<Params>("SAmazonS3SpecificParams", fullS3, tellS3,
                            {{"Clear", [](Params& params) { params.Clear(); }},
                             {"Clear.endpoint", [](Params& params) { params.endpoint.Clear(); }},
                             {"Clear.credentials", [](Params& params) { params.credentials.Clear(); }}}) +
           asking<Params>("SAmazonS3SpecificParams", fullS3,
                          {{"ToXmlStr", tellS3},
                           {"ToLogStr", [](const Params& params) { return params.ToLogStr(); }},
                           {"equality", [](const Params& params) { return util::toStr(params == fullS3()); }}}) +
           assigningFields<Params>("SAmazonS3SpecificParams", fullS3, otherS3, tellS3);
}

SExternalRepoCloudContainer container()
{
    SExternalRepoCloudContainer made;
    made.regionId = longText("region");
    made.containerName = longText("container");
    made.repositoryName = longText("repository");
    made.clientId = cloudbackuplib::CCloudRepoClientId(guid::guid_t(), longText("companion"));
    made.clientDescription = longText("client");
    made.encryption.emplace();
    made.encryption->keySets[guid::guid_t()] = nullptr;
    made.s3Params = fullS3();
    made.extentS3Params[guid::guid_t()] = fullS3();
    return made;
}

std::string tellContainer(const SExternalRepoCloudContainer& made)
{
    return made.Serialize() + util::toStr(made.extentS3Params.size());
}

Operations containerOperations()
{
    using Container = SExternalRepoCloudContainer;
    const auto other = [] {
        auto made = container();
        made.regionId = longText("other") + longText();
        made.s3Params = otherS3();
        return made;
    };
    const auto copied = [other](Container& target) {
        const auto source = other();
        target = source;
    };
    return changing<Container>("SExternalRepoCloudContainer", container, tellContainer, {{"assignedCopy", copied}},
                               EGuarantee::Valid) +
           changing<Container>("SExternalRepoCloudContainer", container, tellContainer,
                               {{"assignedWhole", [other](Container& target) { target = Container(other()); }}}) +
           asking<Container>("SExternalRepoCloudContainer", container,
                             {{"Serialize", [](const Container& made) { return made.Serialize(); }},
                              {"copy", [](const Container& made) { return tellContainer(Container(made)); }},
                              {"equality", [](const Container& made) { return util::toStr(made == container()); }}});
}

Operations limitationOperations()
{
    const CRepositoryLimitationsSpec limitations(guid::guid_t(), EBackupMode::type{}, true, false, true, false, 7);
    return asking("CRepositoryLimitationsSpec",
                  {{"ToString", [limitations](const Nothing&) { return limitations.ToString(); }}});
}

} // namespace

Operations storageOperations()
{
    return s3Operations() + containerOperations() + limitationOperations();
}

} // namespace zelmodel_test
