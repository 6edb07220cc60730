#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/archived_logs_truncation.h>
#include <zelmodel/structs/postgresql_auth_type.h>
#include <zelplatform/util/unicode.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// How the agent reaches and treats an Oracle database, document "OracleConfig". The root's name is not looked at when
/// reading; the settings are not validated.
struct ZELMODEL_API SApplicationProcessingOracleConfig
{
    /// The operating-system user that the database is reached as.
    CUniString username;

    /// When archived redo logs are truncated.
    SOracleArchivedLogsTruncationConfig truncation;

    /// The document as text; throws for a mode of truncation without a name.
    std::string ToXmlString() const;

    /// A document without "LogsTruncateConfig" keeps the defaults. Throws exc::CRuntimeExc for what is missing or
    /// wrong.
    static SApplicationProcessingOracleConfig FromXmlString(const std::string& text);

    /// Reads the element of such a document, in the same way.
    static SApplicationProcessingOracleConfig FromXmlNode(const xmlpp::CXmlNode& root);

    friend bool operator==(const SApplicationProcessingOracleConfig& a, const SApplicationProcessingOracleConfig& b)
    {
        return a.username == b.username && a.truncation == b.truncation;
    }
    friend bool operator!=(const SApplicationProcessingOracleConfig& a, const SApplicationProcessingOracleConfig& b)
    {
        return !(a == b);
    }
};

/// How the agent reaches a PostgreSQL server, document "PostgresConfig". The root's name is not looked at when reading.
struct ZELMODEL_API SApplicationProcessingPostgresConfig
{
    /// The operating-system user that the server is reached as.
    CUniString osUser;

    /// How the agent authenticates.
    EPostgreSqlAuthType::type authType = EPostgreSqlAuthType::Password;

    /// The document as text; throws for a way to authenticate without a name.
    std::string ToXmlString() const;

    /// Throws exc::CRuntimeExc for what is missing or wrong.
    static SApplicationProcessingPostgresConfig FromXmlString(const std::string& text);

    /// Reads the element of such a document, in the same way.
    static SApplicationProcessingPostgresConfig FromXmlNode(const xmlpp::CXmlNode& root);

    friend bool operator==(const SApplicationProcessingPostgresConfig& a, const SApplicationProcessingPostgresConfig& b)
    {
        return a.osUser == b.osUser && a.authType == b.authType;
    }
    friend bool operator!=(const SApplicationProcessingPostgresConfig& a, const SApplicationProcessingPostgresConfig& b)
    {
        return !(a == b);
    }
};

} // namespace zelplatform::model::structs
