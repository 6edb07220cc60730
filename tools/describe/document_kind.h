#pragma once

#include <string>

#include <zelplatform/xmlpp/xml_document.h>

namespace describe
{

/// The kinds of documents that can be told in words.
enum class EDocumentKind
{
    AgentJobOptions,           ///< root "JobOptions"
    ServerJobOptions,          ///< root "JobOptionsRoot": the managing server's form, a part of the settings
    ScheduleOptions,           ///< root "ScheduleOptions"
    LoneSchedule,              ///< the parts of a schedule at the document's top, as binary forms carry them
    ScheduleWindow,            ///< root "ScheduleWindow"
    GfsPolicy,                 ///< root "GfsPolicy", in the short or the long names
    OracleConfig,              ///< root "OracleConfig"
    PostgresConfig,            ///< root "PostgresConfig"
    RepositoryLimitations,     ///< "JobSettings" as the root or below it
    Immutability,              ///< "ImmutabilitySettings" as the root or below it
    DirectImmutability,        ///< "DirectBackupImmutabilitySettings" as the root or below it
    S3Params,                  ///< root "AmazonS3SpecificParams"
    CloudContainer,            ///< root "root" with dotted attributes
    SqlVariant,                ///< root "SqlVariant"
    SessionDetails,            ///< root "Details"
    SessionProgress,           ///< root "ProgressDetails"
    TaskLogRecord,             ///< any root with "ordinalId" and "updateUsn"
    MountSession,              ///< root "MountSessionDetails"
    JobState,                  ///< root "BackupJobState"
    DeletePointTransform,      ///< root "DeletePointTransformSpec"
    SyntheticFullTransform,    ///< root "FullTransformSpec"
    GfsSyntheticFullTransform, ///< root "GfsFullTransformSpec"
};

/// "job options in the agent's form", "a backup window" and so on.
std::string nameOf(EDocumentKind kind);

/// The kind of the document: a log record by its two attributes, every other one by its root, the settings that other
/// documents enclose by the first child of the root that is one. Anything else throws exc::CRuntimeExc.
EDocumentKind kindOf(const xmlpp::CXmlDocument& document);

} // namespace describe
