#include <ryx/object/serialize/location.hpp>

#include <ryx/object/nesting_limit.hpp>

#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/locate.hpp"

namespace ryx::object {

Located::~Located() = default;

Location const* FindLocation(std::exception const& error) noexcept {
  auto const* const located = dynamic_cast<Located const*>(&error);
  return located != nullptr ? &located->GetLocation() : nullptr;
}

std::string FormatLocation(Location const& location) {
  std::string text;
  if (location.hasOffset) {
    text = location.line != 0 ? "line " + std::to_string(location.line) + ", column " +
                                    std::to_string(location.column)
                              : "byte " + std::to_string(location.offset);
  }
  if (!location.path.empty()) {
    text += (text.empty() ? "at " : ", at ") + location.path;
  }
  return text;
}

namespace detail {

void LocateInText(std::string_view text, std::size_t offset, Location& location) {
  location.hasOffset = true;
  location.offset = offset;
  location.line = 1;
  std::size_t lineStart = 0;
  for (std::size_t at = 0; at != offset && at < text.size(); ++at) {
    if (text[at] == '\n') {
      ++location.line;
      lineStart = at + 1;
    }
  }
  location.column = 1;
  for (std::size_t at = lineStart; at != offset && at < text.size(); ++at) {
    // Characters, not bytes: continuation bytes do not count.
    location.column += (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80 ? 1 : 0;
  }
}

std::size_t StringStart(std::string_view text, std::size_t end) noexcept {
  std::size_t at = end - 1;  // the closing quote
  while (at != 0) {
    --at;
    if (text[at] != '"') {
      continue;
    }
    std::size_t backslashes = 0;
    while (backslashes < at && text[at - 1 - backslashes] == '\\') {
      ++backslashes;
    }
    if (backslashes % 2 == 0) {
      return at;
    }
  }
  return 0;
}

namespace {

// Throws `error` as a LocatedError<E> when it is exactly an E, or a
// LocatedError<E> whose location `location` completes.
template <class E>
void RethrowAs(std::exception const& error, Location& location) {
  if (typeid(error) == typeid(E)) {
    throw LocatedError<E>(static_cast<E const&>(error), std::move(location));
  }
  if (auto const* const located = dynamic_cast<LocatedError<E> const*>(&error)) {
    Location const& known = located->GetLocation();
    if (!location.hasOffset) {
      location.hasOffset = known.hasOffset;
      location.offset = known.offset;
      location.line = known.line;
      location.column = known.column;
    }
    if (location.path.empty()) {
      location.path = known.path;
    }
    throw LocatedError<E>(static_cast<E const&>(*located), std::move(location));
  }
}

}  // namespace

void RethrowLocated(Location location) {
  try {
    throw;
  } catch (std::exception const& error) {
    RethrowAs<cereal::archive::JsonParseError>(error, location);
    RethrowAs<cereal::Exception>(error, location);
    RethrowAs<NestingLimitError>(error, location);
    RethrowAs<std::runtime_error>(error, location);
    RethrowAs<std::invalid_argument>(error, location);
    RethrowAs<std::out_of_range>(error, location);
    RethrowAs<std::length_error>(error, location);
    RethrowAs<std::logic_error>(error, location);
    throw;
  }
}

}  // namespace detail

}  // namespace ryx::object
