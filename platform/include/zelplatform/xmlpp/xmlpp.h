#pragma once

/// XML documents, their nodes, and what watches a reader or takes back what a writer did.
#include <zelplatform/xmlpp/lookup_record.h>
#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_name.h>
#include <zelplatform/xmlpp/xml_node.h>
#include <zelplatform/xmlpp/xml_undo.h>
