#pragma once

#include <zelplatform/xmlpp/lookup_record.h>
#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_name.h>
#include <zelplatform/xmlpp/xml_node.h>
#include <zelplatform/xmlpp/xml_undo.h>
