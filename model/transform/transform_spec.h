#pragma once

#include <memory>
#include <string>
#include <vector>

#include <zelmodel/export.h>
#include <zelmodel/transform/i_transform_spec.h>

namespace zelplatform::model::transform
{

/// Deletes restore points by merging them, document "DeletePointTransformSpec".
class ZELMODEL_API CTransformSpec : public ITransformSpec
{
public:
    /// All zero, false or empty.
    CTransformSpec() = default;

    /// Each stores what it is given, unchecked.
    void SetSessionId(const guid::guid_t& sessionId) noexcept { m_sessionId = sessionId; }
    void SetBackupId(const guid::guid_t& backupId) noexcept { m_backupId = backupId; }
    void SetTransformOperationType(ETransformOperationType::type type) noexcept { m_operationType = type; }
    void SetTransformType(ETransformType::type type) noexcept { m_transformType = type; }
    void SetIntegrityCheckEnabled(bool enabled) noexcept { m_integrityCheckEnabled = enabled; }

    /// Replaces the list.
    void SetPointIds(const std::vector<guid::guid_t>& pointIds) { m_pointIds = pointIds; }

    /// Appends to the list.
    void AddPointId(const guid::guid_t& pointId) { m_pointIds.push_back(pointId); }

    guid::guid_t GetSessionId() const override { return m_sessionId; }

    /// What was set or read: the backup whose points are meant.
    guid::guid_t GetBackupId() const noexcept { return m_backupId; }
    ETransformOperationType::type GetTrasformOperationType() const override { return m_operationType; }

    /// What was set or read.
    ETransformType::type GetTransformType() const noexcept { return m_transformType; }
    bool IsIntegrityCheckEnabled() const noexcept { return m_integrityCheckEnabled; }

    /// The restore points in the order in which they are transformed.
    const std::vector<guid::guid_t>& GetPointIds() const noexcept { return m_pointIds; }

    std::string ToString() const override;

    /// Throws "Unable to parse string transform specification. ...".
    static std::shared_ptr<CTransformSpec> FromString(const std::string& text);

    /// Reads the element itself; its name is not looked at. Throws "Unable to parse xml transform specification. ...".
    static std::shared_ptr<CTransformSpec> FromXmlNode(const xmlpp::CXmlNode& node);

private:
    std::vector<guid::guid_t> m_pointIds; ///< first: when copying them fails, nothing else is assigned either
    guid::guid_t m_sessionId;
    guid::guid_t m_backupId;
    ETransformOperationType::type m_operationType = ETransformOperationType::DeletePoint;
    ETransformType::type m_transformType{};
    bool m_integrityCheckEnabled = false;
};

} // namespace zelplatform::model::transform
