#include "rules.h"

#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_node.h>

#include "describe/document_names.h"
#include "fields.h"

namespace check
{
namespace
{

namespace job_names = describe::job_names;
namespace schedule_names = describe::schedule_names;
namespace transform_names = describe::transform_names;
using describe::EDocumentKind;
using describe::Node;
using xmlpp::CXmlNode;

bool isOn(const std::string& flag)
{
    return flag == "1" || util::tolower(flag) == "true";
}

/// Compares what a document says with what its reader made of it.
class Forms
{
public:
    Forms(const Node& tree, const CXmlNode& root, Findings& findings) : m_tree(tree), m_root(root), m_findings(findings)
    {
    }

    // Readers of older versions look at the flag on the parent only.
    void checkScheduleFlag() const
    {
        const auto* enabled = findField(m_tree, {"schedule", "jobStart", "isEnabled"});
        if (enabled->origin.name == schedule_names::IsEnabled && enabled->origin.isThere())
            compareFlag(m_root, job_names::Schedule, enabled->value == "true", "the schedule");
    }

    // Reads inverted: see the reader.
    void checkSnapshot() const
    {
        const auto* mode = findField(m_tree, {"snapshotMode"});
        if (mode->origin.name == job_names::SnapshotMode && mode->origin.isThere())
            compareFlag(m_root, job_names::IsSnapshotRequired, mode->value == "NoSnapshot", "the snapshot mode");
    }

    void checkIndexing() const
    {
        if (!m_root.HasNode(job_names::Indexing))
            return;
        const auto type = findField(m_tree, {"indexing", "type"})->value;
        const auto folders = findField(m_tree, {"indexing", "folders"})->value;
        for (const auto* name : {job_names::IndexOnly, job_names::IndexExcept})
            compare(m_root, name, type == name ? folders : std::string(), type == name);
        compareFlag(m_root, job_names::IndexAll, type == job_names::IndexAll, "the indexing");
    }

    void checkDeletedData() const
    {
        const auto days = m_root.FindChildNode(job_names::RetainDays);
        if (days && days->HasAttribute(job_names::RetainDays) && days->GetTextLine() != 0)
            compare(*days, job_names::RetainDays, days->GetInnerText(), true);
        const auto flag = m_root.FindChildNode(job_names::EnableDeletedVmDataRetention);
        if (flag && isOn(flag->GetInnerText()) != days.has_value())
            add(flag->GetLine(), job_names::EnableDeletedVmDataRetention, "whether there is a RetainDays");
    }

    void checkLastPoint() const
    {
        const auto* points = findField(m_tree, {"lastIncrementPoints"});
        if (points == nullptr || !m_root.HasNode(transform_names::LastIncrementPointIds))
            return;
        const auto last = points->children.empty() ? std::string() : points->children.back().value;
        const auto single = m_root.FindAttribute(transform_names::LastIncrementPointId);
        if (single && util::toStr(guid::guid_t::FromAStr(*single)) != last)
            add(lineOf(m_root, transform_names::LastIncrementPointId), transform_names::LastIncrementPointId,
                "the last point of the list");
    }

private:
    static int lineOf(const CXmlNode& node, const char* attribute)
    {
        for (const auto& candidate : node.GetAttributes())
        {
            if (candidate.name == attribute)
                return candidate.line;
        }
        return node.GetLine();
    }

    void add(int line, const std::string& name, const std::string& other) const
    {
        m_findings.add(rule_id::FormsDisagree, line, name + " and " + other + " disagree");
    }

    void compare(const CXmlNode& node, const char* attribute, const std::string& text, bool isMeant) const
    {
        const auto older = node.FindAttribute(attribute);
        if (older && !(isMeant && *older == text))
            add(lineOf(node, attribute), attribute, isMeant ? "the newer form" : "the indexing");
    }

    void compareFlag(const CXmlNode& node, const char* attribute, bool flag, const char* other) const
    {
        const auto older = node.FindAttribute(attribute);
        if (older && isOn(std::string(*older)) != flag)
            add(lineOf(node, attribute), attribute, other);
    }

    const Node& m_tree;
    const CXmlNode& m_root;
    Findings& m_findings;
};

} // namespace

void checkForms(const Subject& subject, Findings& findings)
{
    const auto kind = subject.document.kind();
    if (kind == EDocumentKind::AgentJobOptions)
    {
        const auto root = subject.document.top().GetFirstChildNode(job_names::JobOptions);
        const Forms forms(subject.tree(), root, findings);
        forms.checkScheduleFlag();
        forms.checkSnapshot();
        forms.checkIndexing();
        forms.checkDeletedData();
    }
    if (kind == EDocumentKind::SyntheticFullTransform)
    {
        const auto root = subject.document.top().GetFirstChildNode(transform_names::FullTransformSpec);
        Forms(subject.tree(), root, findings).checkLastPoint();
    }
}

} // namespace check
