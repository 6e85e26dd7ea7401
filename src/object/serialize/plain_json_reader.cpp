#include "object/serialize/detail/plain_json_reader.hpp"

#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/serialize/location.hpp>
#include <ryx/object/serialize/plain_json.hpp>

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

#include "object/detail/json_pointer.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/json_allocator.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/loaded.hpp"
#include "object/serialize/detail/locate.hpp"
#include "object/serialize/detail/pending_children.hpp"
#include "object/serialize/detail/utf8.hpp"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace ryx::object::detail {

namespace {

using rapidjson::SizeType;

// Strict JSON: no comments, trailing commas, NaN or infinities. Numbers come
// as their text, converted exactly here.
constexpr unsigned ParseFlags = rapidjson::kParseIterativeFlag |
                                rapidjson::kParseNumbersAsStringsFlag;

// The text of a number, cut short for a message.
std::string Shown(std::string_view number) {
  constexpr std::size_t Longest = 40;
  return number.size() <= Longest ? std::string(number)
                                  : std::string(number.substr(0, Longest)) + "...";
}

bool IsInteger(std::string_view number) {
  return number.find_first_of(".eE") == std::string_view::npos;
}

// An integer's text ('-'? digits) as sign and magnitude; `fits` is false
// beyond 64 bits.
struct Integer {
  bool negative = false;
  bool fits = true;
  std::uint64_t magnitude = 0;
};

Integer ReadInteger(std::string_view number) {
  Integer integer;
  std::size_t at = 0;
  if (number[0] == '-') {
    integer.negative = true;
    at = 1;
  }
  constexpr std::uint64_t Max = std::numeric_limits<std::uint64_t>::max();
  for (; at != number.size(); ++at) {
    auto const digit = static_cast<std::uint64_t>(number[at] - '0');
    if (integer.magnitude > (Max - digit) / 10) {
      integer.fits = false;
      return integer;
    }
    integer.magnitude = integer.magnitude * 10 + digit;
  }
  return integer;
}

template <class T>
bool Holds(Integer const& integer) {
  if (!integer.fits) {
    return false;
  }
  if (integer.negative) {
    if constexpr (std::is_unsigned_v<T>) {
      return integer.magnitude == 0;
    } else {
      // |min| = max + 1
      return integer.magnitude <= static_cast<std::uint64_t>(std::numeric_limits<T>::max()) + 1;
    }
  }
  return integer.magnitude <= static_cast<std::uint64_t>(std::numeric_limits<T>::max());
}

// Only once Holds<T>.
template <class T>
T ValueOf(Integer const& integer) {
  if (integer.negative && integer.magnitude != 0) {
    return static_cast<T>(-static_cast<std::int64_t>(integer.magnitude - 1) - 1);
  }
  return static_cast<T>(integer.magnitude);
}

// Whether a number std::from_chars found out of range is below the smallest
// magnitude rather than above the largest: it is d.ddd times ten to a
// negative power.
bool IsTiny(std::string_view number) {
  auto const isDigit = [&](std::size_t at) {
    return at < number.size() && number[at] >= '0' && number[at] <= '9';
  };
  std::size_t at = number[0] == '-' ? 1 : 0;
  long power = 0;  // of the first nonzero digit, before the exponent
  bool nonzero = false;
  for (; isDigit(at); ++at) {
    power += nonzero ? 1 : 0;
    nonzero |= number[at] != '0';
  }
  if (at < number.size() && number[at] == '.') {
    for (++at; isDigit(at); ++at) {
      if (!nonzero) {
        --power;
        nonzero = number[at] != '0';
      }
    }
  }
  long exponent = 0;
  if (at < number.size()) {  // 'e' or 'E'
    ++at;
    bool const negative = number[at] == '-';
    at += number[at] == '-' || number[at] == '+' ? 1 : 0;
    for (; isDigit(at); ++at) {
      exponent = exponent < 100000 ? exponent * 10 + (number[at] - '0') : exponent;
    }
    exponent = negative ? -exponent : exponent;
  }
  return power + exponent < 0;
}

// The number as a T, exactly rounded; false when it is beyond T's range.
// Below the smallest magnitude it is zero, as with any other rounding.
template <class T>
bool ReadReal(std::string_view number, T& value) {
  auto const [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error == std::errc::result_out_of_range && IsTiny(number)) {
    value = number[0] == '-' ? -T(0) : T(0);
    return true;
  }
  return error == std::errc() && end == number.data() + number.size();
}

// The SAX handler. Each value event finds the plan of the value it starts
// (Next), makes the value or opens its container, and hands the finished
// value to whatever holds it (Finish). Anything the plan refuses throws
// PlainJsonError on the spot, located at the value.
class Builder {
 public:
  Builder(std::string_view text, rapidjson::MemoryStream const& in, PlainPlan const& root)
      : text(text), in(in), root(root), limit(GetNestingLimit()) {}

  std::shared_ptr<Object>& Result() noexcept { return result; }

  bool Null() {
    Token(TokenKind::Literal, 4);
    PlainPlan const& plan = Next();
    if (!plan.nullable) {
      Refuse(plan, "null");
    }
    Finish(nullptr, nullptr);
    return true;
  }

  bool Bool(bool value) {
    Token(TokenKind::Literal, value ? 4 : 5);
    PlainPlan const& plan = Next();
    if (plan.make != LibraryKind::Bool && !Decides(plan)) {
      Refuse(plan, value ? "true" : "false");
    }
    Finish(std::make_shared<object::Bool>(value), Converter(plan));
    return true;
  }

  bool RawNumber(char const* digits, SizeType length, bool) {
    Token(TokenKind::Literal, length);
    std::string_view const number(digits, length);
    PlainPlan const& plan = Next();
    switch (plan.make) {
      case LibraryKind::none:
      case LibraryKind::other:
        Finish(Untyped(number), Converter(plan));
        return true;
      case LibraryKind::Int8:
        return Whole<object::Int8>(plan, number);
      case LibraryKind::Int16:
        return Whole<object::Int16>(plan, number);
      case LibraryKind::Int32:
        return Whole<object::Int32>(plan, number);
      case LibraryKind::Int64:
        return Whole<object::Int64>(plan, number);
      case LibraryKind::UInt8:
        return Whole<object::UInt8>(plan, number);
      case LibraryKind::UInt16:
        return Whole<object::UInt16>(plan, number);
      case LibraryKind::UInt32:
        return Whole<object::UInt32>(plan, number);
      case LibraryKind::UInt64:
        return Whole<object::UInt64>(plan, number);
      case LibraryKind::Float:
        return Real<object::Float>(plan, number);
      case LibraryKind::Double:
        return Real<object::Double>(plan, number);
      default:
        Refuse(plan, "the number " + Shown(number));
    }
  }

  bool String(char const* characters, SizeType length, bool) {
    Token(TokenKind::String, length);
    std::string_view const string(characters, length);
    PlainPlan const& plan = Next();
    CheckUtf8(string, "the string", true);
    if (plan.make != LibraryKind::String && !Decides(plan)) {
      Refuse(plan, "a string");
    }
    Finish(std::make_shared<object::String>(std::string(string)), Converter(plan));
    return true;
  }

  bool StartObject() { return Open(true); }
  bool StartArray() { return Open(false); }

  bool Key(char const* characters, SizeType length, bool) {
    Token(TokenKind::String, length);
    std::string_view const key(characters, length);
    Frame& top = frames.back();
    // Located at the object holding the member.
    CheckUtf8(key, "the member name", false);
    top.current = pending.EntryMark();
    ++top.keys;
    pending.AddKey(std::string(key));
    return true;
  }

  bool EndObject(SizeType) {
    Frame const top = Closing();
    auto dictionary = std::make_shared<DictionaryKind>();
    DictionaryKind::Properties properties = pending.TakeEntries(top.mark);
    Required required = ElementSchema(*top.plan);
    LoadedDictionary loaded{properties, required};
    dictionary->Serialize(loaded);
    frames.pop_back();
    Finish(std::move(dictionary), top.convert, top.start);
    return true;
  }

  bool EndArray(SizeType) {
    Frame const top = Closing();
    auto array = std::make_shared<ArrayKind>();
    ArrayKind::Objects objects = pending.TakeElements(top.mark);
    Required required = ElementSchema(*top.plan);
    LoadedArray loaded{required, objects};
    array->Serialize(loaded);
    frames.pop_back();
    Finish(std::move(array), top.convert, top.start);
    return true;
  }

  // Never called: numbers come as their text.
  static bool Int(int) { return false; }
  static bool Uint(unsigned) { return false; }
  static bool Int64(std::int64_t) { return false; }
  static bool Uint64(std::uint64_t) { return false; }
  static bool Double(double) { return false; }

  // A syntax error rapidjson found at `offset`.
  [[noreturn]] void FailToParse(rapidjson::ParseErrorCode code, std::size_t offset) {
    Fail(offset, true, rapidjson::GetParseError_En(code));
  }

 private:
  struct Frame {
    PlainPlan const* plan;  // the container's; `none` for one the JSON decides
    PlainPlan const* convert;  // the plan of a type of the user's own it makes, or null
    bool dictionary;
    std::size_t mark;   // where its children start in `pending`
    std::size_t start;  // the offset of its '{' or '['
    std::size_t count = 0;    // its children so far
    std::size_t current = 0;  // a dictionary's latest key, in `pending`
    std::size_t keys = 0;     // a dictionary's keys so far
  };

  // The token just read, so that a failure can be placed at its start.
  enum class TokenKind : std::uint8_t { Literal, String, Open };

  void Token(TokenKind kind, std::size_t length) noexcept {
    tokenKind = kind;
    tokenLength = length;
  }

  // A literal or number is its length back from where reading stopped, a
  // bracket where it stopped (the event comes before the bracket is taken), a
  // string at its opening quote.
  std::size_t TokenStart() const {
    std::size_t const end = in.Tell();
    switch (tokenKind) {
      case TokenKind::Literal:
        return end >= tokenLength ? end - tokenLength : 0;
      case TokenKind::Open:
        return end;
      case TokenKind::String:
        break;
    }
    return StringStart(text, end);
  }

  // Whether the JSON decides what a value becomes: without a schema, in a
  // container the schema leaves open, and inside a type of the user's own.
  static bool Decides(PlainPlan const& plan) noexcept {
    return plan.make == LibraryKind::none || plan.make == LibraryKind::other;
  }

  static PlainPlan const* Converter(PlainPlan const& plan) noexcept {
    return plan.make == LibraryKind::other ? &plan : nullptr;
  }

  static Required ElementSchema(PlainPlan const& plan) {
    return plan.make == LibraryKind::none ? Required() : plan.elementSchema;
  }

  // The plan of the value starting now.
  PlainPlan const& Next() {
    if (frames.empty()) {
      return root;
    }
    if (frames.size() >= limit) {
      Location location = Locate(TokenStart(), true);
      throw LocatedError<NestingLimitError>(
          NestingLimitError("Values are nested deeper than the nesting limit of " +
                            std::to_string(limit) + " levels"),
          std::move(location));
    }
    Frame const& top = frames.back();
    PlainPlan const& plan = *top.plan;
    if (plan.make == LibraryKind::none) {
      return plan;
    }
    if (!plan.perPosition) {
      return plan.children.front();
    }
    if (top.count == plan.children.size()) {
      Fail(TokenStart(), true, Count(top, "more"));
    }
    return plan.children[top.count];
  }

  bool Open(bool dictionary) {
    Token(TokenKind::Open, 1);
    PlainPlan const& plan = Next();
    Frame frame{&plan, nullptr, dictionary, dictionary ? pending.EntryMark() : pending.ElementMark(),
                in.Tell()};
    if (plan.make == LibraryKind::other) {
      frame.plan = &UntypedPlan();
      frame.convert = &plan;
    } else if (plan.make != (dictionary ? LibraryKind::Dictionary : LibraryKind::Array) &&
               plan.make != LibraryKind::none) {
      Refuse(plan, dictionary ? "an object" : "an array");
    }
    frames.push_back(frame);
    return true;
  }

  // The container on top, checked for the count a per-position schema gives.
  Frame const& Closing() const {
    Frame const& top = frames.back();
    if (top.plan->perPosition && top.count != top.plan->children.size()) {
      Fail(top.start, false, Count(top, "fewer"));
    }
    return top;
  }

  std::string Count(Frame const& top, char const* moreOrFewer) const {
    std::size_t const expected = top.plan->children.size();
    char const* const what = top.dictionary ? (expected == 1 ? "member" : "members")
                                            : (expected == 1 ? "element" : "elements");
    return std::string("the schema gives ") + (top.dictionary ? "this object" : "this array") +
           " exactly " + std::to_string(expected) + " " + what + ", and it has " + moreOrFewer;
  }

  // A finished value to whatever holds it, made into a type of the user's
  // own first when the plan says so.
  void Finish(std::shared_ptr<Object> value, PlainPlan const* convert,
              std::size_t start = std::string::npos) {
    if (convert != nullptr) {
      value = Convert(*convert, *value, start != std::string::npos ? start : TokenStart());
    }
    if (frames.empty()) {
      result = std::move(value);
      return;
    }
    Frame& top = frames.back();
    if (top.dictionary) {
      pending.SetLastValue(std::move(value));
    } else {
      pending.AddElement(std::move(value));
    }
    ++top.count;
  }

  std::shared_ptr<Object> Convert(PlainPlan const& plan, Object const& plain, std::size_t start) {
    registry::Info const& own = *plan.own;
    std::shared_ptr<Object> made = own.GetConstructFunction()();
    if (made == nullptr) {
      Fail(start, true, std::string(own.GetTypeName()) + " was made as a null value");
    }
    try {
      own.GetPlainFunctions().load(*made, plain);
    } catch (std::invalid_argument const& refused) {
      Fail(start, true, std::string(own.GetTypeName()) + ": " + refused.what());
    }
    return made;
  }

  // Without a schema: Int64, UInt64 above its range, Double for the rest.
  std::shared_ptr<Object> Untyped(std::string_view number) {
    if (IsInteger(number)) {
      Integer const integer = ReadInteger(number);
      if (Holds<long>(integer)) {
        return std::make_shared<object::Int64>(ValueOf<long>(integer));
      }
      if (Holds<unsigned long>(integer)) {
        return std::make_shared<object::UInt64>(ValueOf<unsigned long>(integer));
      }
    }
    double value = 0;
    if (!ReadReal(number, value)) {
      Fail(TokenStart(), true, "the number " + Shown(number) + " is beyond the range of a double");
    }
    return std::make_shared<object::Double>(value);
  }

  template <class Kind>
  bool Whole(PlainPlan const& plan, std::string_view number) {
    using T = typename Kind::ValueType;
    if (!IsInteger(number)) {
      Fail(TokenStart(), true,
           "expected " + DescribeExpected(plan) + ", found the number " + Shown(number) +
               ", which is not an integer");
    }
    Integer const integer = ReadInteger(number);
    if (!Holds<T>(integer)) {
      Fail(TokenStart(), true,
           "the integer " + Shown(number) + " is out of the range of " + DescribeExpected(plan) +
               " (" + std::to_string(+std::numeric_limits<T>::min()) + " to " +
               std::to_string(+std::numeric_limits<T>::max()) + ")");
    }
    Finish(std::make_shared<Kind>(ValueOf<T>(integer)), nullptr);
    return true;
  }

  template <class Kind>
  bool Real(PlainPlan const& plan, std::string_view number) {
    typename Kind::ValueType value{};
    if (!ReadReal(number, value)) {
      Fail(TokenStart(), true,
           "the number " + Shown(number) + " is out of the range of " + DescribeExpected(plan));
    }
    Finish(std::make_shared<Kind>(value), nullptr);
    return true;
  }

  void CheckUtf8(std::string_view string, char const* what, bool child) {
    std::size_t const invalid = FindInvalidUtf8(string);
    if (invalid != std::string_view::npos) {
      Fail(TokenStart(), child,
           std::string(what) + " is not valid UTF-8: " + DescribeInvalidUtf8(string, invalid));
    }
  }

  [[noreturn]] void Refuse(PlainPlan const& plan, std::string const& found) {
    std::string reason = "expected " + DescribeExpected(plan) + ", found " + found;
    if (found == "null") {
      reason += ": with a schema, every value must be there (no container holds a null element)";
    }
    Fail(TokenStart(), true, std::move(reason));
  }

  // Where reading is: the offset, its line and column, and the path of the
  // value there (with `child`, the child the top container is reading).
  Location Locate(std::size_t offset, bool child) const {
    Location location;
    LocateInText(text, offset, location);
    std::size_t const levels = child ? frames.size() : frames.size() - (frames.empty() ? 0 : 1);
    for (std::size_t level = 0; level != levels; ++level) {
      Frame const& frame = frames[level];
      if (!frame.dictionary) {
        AppendPointerIndex(location.path, frame.count);
      } else if (frame.keys > frame.count) {  // a key whose value is being read
        AppendPointerKey(location.path, pending.KeyAt(frame.current));
      }
    }
    return location;
  }

  [[noreturn]] void Fail(std::size_t offset, bool child, std::string reason) const {
    Location location = Locate(offset, child);
    std::string what = "line " + std::to_string(location.line) + ", column " +
                       std::to_string(location.column);
    if (!location.path.empty()) {
      what += ", at " + location.path;
    }
    what += ": " + reason;
    throw PlainJsonError(what, std::move(reason), std::move(location));
  }

  std::string_view const text;
  rapidjson::MemoryStream const& in;
  PlainPlan const& root;
  std::size_t const limit;
  std::vector<Frame> frames;
  PendingChildren pending;
  std::shared_ptr<Object> result;
  TokenKind tokenKind = TokenKind::Literal;
  std::size_t tokenLength = 0;
};

}  // namespace

std::shared_ptr<Object> ReadPlainJson(std::string_view text, PlainPlan const& plan) {
  rapidjson::MemoryStream in(text.data(), text.size());
  Builder builder(text, in, plan);
  JsonStackAllocator allocator;
  rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JsonStackAllocator> reader(
      &allocator);
  if (!reader.Parse<ParseFlags>(in, builder)) {
    builder.FailToParse(reader.GetParseErrorCode(), reader.GetErrorOffset());
  }
  // The reader takes a NUL byte for the end of its input.
  if (in.Tell() != text.size()) {
    builder.FailToParse(rapidjson::kParseErrorDocumentRootNotSingular, in.Tell());
  }
  return std::move(builder.Result());
}

}  // namespace ryx::object::detail
