// The document a subcommand reads: the IN argument (a file, or standard input
// when absent or "-"), --from, the form it is in, and --schema, the schema
// plain JSON is read under.
#pragma once

#include "form.hpp"

#include <ryx/object/fwd.hpp>

#include <CLI/App.hpp>

#include <memory>
#include <optional>
#include <string>

namespace ryx::object::tool {

struct DocumentOptions {
  std::string path = "-";
  std::optional<Form> from;
  std::string schema;
};

void AddDocumentOptions(CLI::App& command, DocumentOptions& options);

// Accepts "json", "xml", "binary" or "plain" for an option that stores a Form.
CLI::Validator FormName();

// Reads and loads the document; the input is released before this returns,
// so the output may replace the input file. A document that cannot be
// recognised or loaded throws with the file's name in front of the reason,
// and says so when it is JSON that --from plain would read. A --schema that
// is not a schema, or without --from plain, is a UsageError.
std::shared_ptr<Object> LoadDocument(DocumentOptions const& options);

}  // namespace ryx::object::tool
