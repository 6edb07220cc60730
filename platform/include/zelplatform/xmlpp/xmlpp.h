#pragma once

#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_name.h>
#include <zelplatform/xmlpp/xml_node.h>
