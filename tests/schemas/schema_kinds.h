#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "describe/document_kind.h"

namespace zelmodel_test
{

/// A kind of XML document with schemas of its own.
struct SchemaKind
{
    const char* name; ///< of the files "NAME.xsd", what is written, and "NAME.rng", what is read
    describe::EDocumentKind kind;

    friend void PrintTo(const SchemaKind& shown, std::ostream* out) { *out << shown.name; }
};

const std::vector<SchemaKind>& schemaKinds();

/// Throws std::out_of_range when there is none of the name.
const SchemaKind& findSchemaKind(const std::string& name);

/// Whether the library has no writer of the kind.
bool isOnlyRead(const SchemaKind& kind);

/// The kind's name as gtest takes names.
std::string nameOfKind(const testing::TestParamInfo<SchemaKind>& info);

/// The paths of the schemas: what is written, what is read.
std::string pathOfXsd(const SchemaKind& kind);
std::string pathOfRng(const SchemaKind& kind);

} // namespace zelmodel_test
