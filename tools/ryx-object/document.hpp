// The document a subcommand reads: the IN argument (a file, or standard input
// when absent or "-") and --from, the form it is in.
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
};

void AddDocumentOptions(CLI::App& command, DocumentOptions& options);

// Accepts "json", "xml" or "binary" for an option that stores a Form.
CLI::Validator FormName();

// Reads and loads the document; the input is released before this returns,
// so the output may replace the input file. A document that cannot be
// recognised or loaded throws with the file's name in front of the reason.
std::shared_ptr<Object> LoadDocument(DocumentOptions const& options);

}  // namespace ryx::object::tool
