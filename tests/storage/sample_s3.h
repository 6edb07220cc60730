#pragma once

#include <zelmodel/repositories.h>
#include <zelplatform/datetime/datetime.h>

namespace zelmodel_test
{

/// Every field is set to something else.
inline zelplatform::model::structs::SAmazonS3SpecificParams fullS3Params()
{
    zelplatform::model::structs::SAmazonS3SpecificParams params;
    params.endpoint.apiEndpoint = "https://s3.example.com:9000";
    params.endpoint.arnString = "arn:store:us-1:volume";
    params.endpoint.fingerprint = "00112233445566778899AABBCCDDEEFF00112233445566778899AABBCCDDEEFF";
    params.endpoint.proxy.emplace();
    params.endpoint.proxy->endpoint = "http://proxy.example.com:3128";
    params.endpoint.proxy->login = "svc";
    params.endpoint.proxy->password = "proxy-pass";
    params.credentials.accessKeyId = "AKIDEXAMPLE";
    params.credentials.secretAccessKey = "secret/Key+1";
    params.credentials.sessionToken = "token==";
    params.credentials.roleName = "backup-role";
    params.credentials.metadataHost = "169.254.10.1";
    params.credentials.lastUpdateTimeUtc =
        datetime::CDateTime::fromString("03/06/2024 12:34:56", datetime::CDateTime::QorDateFormat);
    return params;
}

} // namespace zelmodel_test
