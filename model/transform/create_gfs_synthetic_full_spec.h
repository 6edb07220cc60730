#pragma once

#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/transform/i_transform_spec.h>

namespace zelplatform::model::transform
{

/// Builds a synthetic full backup for GFS retention, document "GfsFullTransformSpec".
class ZELMODEL_API CCreateGfsSyntheticFullSpec : public ITransformSpec
{
public:
    /// The session, the backup, what is done and the file to write. Nothing is checked.
    CCreateGfsSyntheticFullSpec(const guid::guid_t& sessionId, const guid::guid_t& backupId,
                                ETransformOperationType::type operationType, std::string jobTargetFile);

    /// Replaces the file.
    void SetJobTargetFile(const std::string& file) { m_jobTargetFile = file; }

    guid::guid_t GetSessionId() const override { return m_sessionId; }

    /// What was given or read.
    guid::guid_t GetBackupId() const noexcept { return m_backupId; }
    ETransformOperationType::type GetTrasformOperationType() const override { return m_operationType; }

    /// What was given or read.
    const std::string& GetJobTargetFile() const noexcept { return m_jobTargetFile; }

    std::string ToString() const override;

    /// Failures of the text itself pass through unchanged, on purpose.
    static std::shared_ptr<CCreateGfsSyntheticFullSpec> FromString(const std::string& text);

    /// Reads the element itself; its name is not looked at. Throws "Unable to parse xml create gfs synthetic
    /// specification. ...".
    static std::shared_ptr<CCreateGfsSyntheticFullSpec> FromXmlNode(const xmlpp::CXmlNode& node);

private:
    std::string m_jobTargetFile; ///< first: when copying it fails, nothing else is assigned either
    guid::guid_t m_sessionId;
    guid::guid_t m_backupId;
    ETransformOperationType::type m_operationType;
};

} // namespace zelplatform::model::transform
