#pragma once

#include <memory>
#include <string>
#include <vector>

#include <zelmodel/export.h>
#include <zelmodel/transform/i_transform_spec.h>

namespace zelplatform::model::transform
{

/// Builds a synthetic full backup from the last increments, document "FullTransformSpec".
class ZELMODEL_API CCreateSyntheticFullSpec : public ITransformSpec
{
public:
    /// The session, the backup, its last increments with the newest at the end, and the file to write. Nothing is
    /// checked.
    CCreateSyntheticFullSpec(const guid::guid_t& sessionId, const guid::guid_t& backupId,
                             std::vector<guid::guid_t> lastIncrementPoints, std::string jobTargetFile);

    CCreateSyntheticFullSpec(const CCreateSyntheticFullSpec&) = default;
    CCreateSyntheticFullSpec(CCreateSyntheticFullSpec&&) = default;
    CCreateSyntheticFullSpec& operator=(CCreateSyntheticFullSpec&&) = default;
    ~CCreateSyntheticFullSpec() override = default;

    /// All or nothing.
    CCreateSyntheticFullSpec& operator=(const CCreateSyntheticFullSpec& other)
    {
        return *this = CCreateSyntheticFullSpec(other);
    }

    /// Replaces the points or the file.
    void SetLastIncrementPoints(const std::vector<guid::guid_t>& points) { m_lastIncrementPoints = points; }
    void SetJobTargetFile(const std::string& file) { m_jobTargetFile = file; }

    guid::guid_t GetSessionId() const override { return m_sessionId; }

    /// What was given or read.
    guid::guid_t GetBackupId() const noexcept { return m_backupId; }
    const std::vector<guid::guid_t>& GetLastIncrementPoints() const noexcept { return m_lastIncrementPoints; }
    const std::string& GetJobTargetFile() const noexcept { return m_jobTargetFile; }

    /// Always CreateSyntheticFull, whatever a document said.
    ETransformOperationType::type GetTrasformOperationType() const override;

    /// Writes the points as a list and the last of them in the older attribute too; without points the attribute is
    /// left out.
    std::string ToString() const override;

    /// Throws "Unable to parse string create synthetic specification. ...".
    static std::shared_ptr<CCreateSyntheticFullSpec> FromString(const std::string& text);

    /// Reads the element itself; its name is not looked at. The list counts when there is one, else the single point.
    /// Throws "Unable to parse xml create synthetic specification. ...".
    static std::shared_ptr<CCreateSyntheticFullSpec> FromXmlNode(const xmlpp::CXmlNode& node);

private:
    guid::guid_t m_sessionId;
    guid::guid_t m_backupId;
    std::vector<guid::guid_t> m_lastIncrementPoints;
    std::string m_jobTargetFile;
};

} // namespace zelplatform::model::transform
