// Refuses allocations inside one call at a time: the k-th alone, then every
// one from the k-th on, for k = 1, 2, ... until the call no longer reaches its
// k-th allocation. Every call must end with its documented failure (a status,
// NULL or false with one log line from the C functions, std::bad_alloc from
// C++) or with the complete result, leave its inputs as they were where it
// promises that, and leak nothing once everything is released.
//
// The program replaces malloc, calloc, realloc and free, which operator new
// and delete call too (nothing here asks for over-aligned memory), so it
// cannot run beside the sanitizers' own allocator.
#include <ryx/logging.h>
#include <ryx/object.h>
#include <ryx/object.hpp>
#include <ryx/object/serialize.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "record/everything.hpp"
#include "support.hpp"

namespace {

struct {
  bool armed = false;
  long refuseAt = 0;        // the first allocation of the armed call to refuse, from 1
  bool refuseRest = false;  // after the first refusal, refuse every later one too
  long seen = 0;
  long refused = 0;
  long live = 0;  // blocks of the whole process not yet freed
} allocations;

bool Refuse() noexcept {
  if (!allocations.armed) {
    return false;
  }
  ++allocations.seen;
  bool const refuse = allocations.seen == allocations.refuseAt ||
                      (allocations.refuseRest && allocations.refused > 0);
  if (refuse) {
    ++allocations.refused;
    errno = ENOMEM;  // as malloc sets it; the C library's own callers read it
  }
  return refuse;
}

void* Counted(void* block) noexcept {
  allocations.live += block != nullptr ? 1 : 0;
  return block;
}

}  // namespace

extern "C" {
void* __libc_malloc(std::size_t) noexcept;
void* __libc_calloc(std::size_t, std::size_t) noexcept;
void* __libc_realloc(void*, std::size_t) noexcept;
void __libc_free(void*) noexcept;

void* malloc(std::size_t size) noexcept {
  return Refuse() ? nullptr : Counted(__libc_malloc(size));
}
void* calloc(std::size_t count, std::size_t size) noexcept {
  return Refuse() ? nullptr : Counted(__libc_calloc(count, size));
}
void free(void* block) noexcept {
  if (block != nullptr) {
    --allocations.live;
    __libc_free(block);
  }
}
void* realloc(void* block, std::size_t size) noexcept {
  if (block == nullptr) {
    return malloc(size);
  }
  if (size == 0) {
    free(block);
    return nullptr;
  }
  return Refuse() ? nullptr : __libc_realloc(block, size);
}
}

namespace {

using namespace ryx::object;
using namespace ryx::object::testing;

// The log, kept without allocating: the sink runs inside the refused call.
struct {
  int count = 0;
  char last[256] = {};
} logs;

void KeepLog(char const*, int, char const* message, void*) {
  ++logs.count;
  std::strncpy(logs.last, message, sizeof logs.last - 1);
}

// Runs `call` with the scheduled refusals.
template <class Call>
auto Armed(Call&& call) {
  logs.count = 0;
  allocations.seen = 0;
  allocations.refused = 0;
  struct Disarm {
    ~Disarm() { allocations.armed = false; }
  } const disarm;
  allocations.armed = true;
  return call();
}

// The result of a C++ call, or nothing when it threw std::bad_alloc.
template <class Call>
auto ArmedOrBadAlloc(Call&& call) -> std::optional<decltype(call())> {
  try {
    return Armed(call);
  } catch (std::bad_alloc const&) {
    return std::nullopt;
  }
}

char const LongText[] = "a text longer than any small-string buffer";
char const NewKey[] = "another key, past any small-string buffer";

std::shared_ptr<Object const> Sample() {
  auto numbers = std::make_shared<Array<Object>>(std::vector<std::shared_ptr<Object>>{
      MakeInt(-7), std::make_shared<UInt64>(std::numeric_limits<std::uint64_t>::max()),
      std::make_shared<Double>(0.1), MakeBool(true)});
  return std::make_shared<Dictionary<Object>>(Dictionary<Object>::Properties{
      {"numbers", std::move(numbers)}, {LongText, MakeString(LongText)}});
}

// A JSON save function with its layout bound.
template <class Save>
auto Laid(JsonLayout layout, Save save) {
  return [layout, save](std::shared_ptr<Object const> const& value) { return save(value, layout); };
}

// A record holding a record and an array, each member set.
std::shared_ptr<Object const> RecordSample() {
  auto const record = test::Full();
  record->next = test::Full();
  return record;
}

// Saving the sample armed gives the text of an unarmed save, or bad_alloc.
template <class Save>
bool SavesWhole(Save save, std::shared_ptr<Object const> (*makeSample)() = Sample) {
  auto const sample = makeSample();
  std::string const expected = save(sample);
  auto const text = ArmedOrBadAlloc([&] { return save(sample); });
  if (text) {
    EXPECT_EQ(*text, expected);
  }
  return !text;
}

// Loading the sample's document armed gives a value equal to it, or bad_alloc.
template <class Save, class Load>
bool LoadsWhole(Save save, Load load, std::shared_ptr<Object const> (*makeSample)() = Sample) {
  auto const sample = makeSample();
  std::string const document = save(sample);
  auto const value = ArmedOrBadAlloc([&] { return load(document); });
  if (value) {
    EXPECT_TRUE(*value && (*value)->EqualTo(*sample));
  }
  return !value;
}

RyxObject* Int(int32_t value) { return RyxObjectInt32Create(value); }
RyxObject* ThreeInts() { return RyxObjectArrayCreateObjects(Int(1), Int(2), Int(3), nullptr); }
RyxObject* ThreeEntries() {
  return RyxObjectDictCreatePairs("one", Int(1), "two", Int(2), LongText, Int(3), nullptr);
}
std::size_t SizeOf(RyxObject* container) { return Snapshot::Of(Peek(container)).elements.size(); }

// A status call on a container of three elements: success leaves `sizeAfter`
// elements, failure answers RyxObjectStatusFailure and changes nothing.
template <class Call>
bool ChangesWhole(RyxObject* container, std::size_t sizeAfter, Call call) {
  Snapshot const before = Snapshot::Of(Peek(container));
  RyxObjectStatus const status = Armed([&] { return call(container); });
  if (status == RyxObjectStatusSuccess) {
    EXPECT_EQ(SizeOf(container), sizeAfter);
  } else {
    EXPECT_EQ(status, RyxObjectStatusFailure);
    EXPECT_TRUE(Snapshot::Of(Peek(container)) == before);
  }
  RyxObjectRelease(container);
  return status != RyxObjectStatusSuccess;
}

// A call that takes an element out of a container of three elements as an
// owned handle. A failure may have removed the element already (documented).
template <class Call>
bool PopsWhole(RyxObject* container, Call call) {
  Snapshot const before = Snapshot::Of(Peek(container));
  RyxObject* const popped = Armed([&] { return call(container); });
  if (popped != nullptr || SizeOf(container) != 3) {
    EXPECT_EQ(SizeOf(container), 2u);
  } else {
    EXPECT_TRUE(Snapshot::Of(Peek(container)) == before);
  }
  RyxObjectRelease(popped);
  RyxObjectRelease(container);
  return popped == nullptr;
}

// A call that makes a new value: NULL, or a value equal to `expected`.
template <class Call>
bool MakesWhole(std::shared_ptr<Object> const& expected, Call call) {
  RyxObject* const made = Armed(call);
  if (made != nullptr) {
    EXPECT_TRUE(Peek(made).EqualTo(*expected));
  }
  RyxObjectRelease(made);
  return made == nullptr;
}

// A C call that hands out a document: the whole `expected` text, or
// RyxObjectStatusAllocationFailure with the outputs left alone.
template <class Call>
bool HandsOutWhole(std::string const& expected, Call call) {
  char* data = nullptr;
  std::size_t size = 0;
  RyxObjectStatus const status = Armed([&] { return call(&data, &size); });
  if (status == RyxObjectStatusSuccess) {
    EXPECT_EQ(std::string(data, size), expected);
  } else {
    EXPECT_EQ(status, RyxObjectStatusAllocationFailure);
    EXPECT_TRUE(data == nullptr && size == 0);
  }
  std::free(data);
  return status != RyxObjectStatusSuccess;
}

struct Case {
  char const* function;  // its failure's log line, or the start of it
  bool logged;           // whether a failure is logged
  bool (*run)();         // makes the inputs, calls armed, checks, releases; true on failure
};

// A representative call of each family of C functions, then the C++ entries
// that RyxObjectSave (JSON), RyxObjectLoad (binary) and RyxObjectRender do not
// already cover.
// The creations of containers take one value: a failure leaves the values not
// yet read with the caller, who cannot tell which those were.
// clang-format off
Case const Cases[] = {
  {"RyxObjectReference", false, [] {
    RyxObject* const value = Int(7);
    RyxObject* const second = Armed([&] { return RyxObjectReference(value); });
    EXPECT_EQ(RyxObjectReferenceCount(value), second != nullptr ? 2 : 1);
    RyxObjectRelease(second);
    RyxObjectRelease(value);
    return second == nullptr;
  }},
  {"RyxObjectInt32Create", true, [] { return MakesWhole(MakeInt(7), [] { return Int(7); }); }},
  {"RyxObjectStringSet", false, [] {
    RyxObject* const string = RyxObjectStringCreate("short");
    RyxObjectStatus const status = Armed([&] { return RyxObjectStringSet(string, LongText); });
    char const* text = nullptr;
    RyxObjectStringGet(string, &text);
    EXPECT_STREQ(text, status == RyxObjectStatusSuccess ? LongText : "short");
    EXPECT_TRUE(status == RyxObjectStatusSuccess || status == RyxObjectStatusAllocationFailure);
    RyxObjectRelease(string);
    return status != RyxObjectStatusSuccess;
  }},
  {"RyxObjectStringConvertAllocate", false, [] {
    RyxObject* const string = RyxObjectStringCreate(LongText);
    char* text = nullptr;
    RyxObjectStatus const status =
        Armed([&] { return RyxObjectStringConvertAllocate(string, &text); });
    EXPECT_TRUE(status == RyxObjectStatusSuccess ? std::strcmp(text, LongText) == 0
                                                 : status == RyxObjectStatusAllocationFailure);
    std::free(text);
    return status != RyxObjectStatusSuccess;
  }},
  {"RyxObjectArrayCreateObjects", true, [] {
    RyxObject* const value = Int(1);
    return MakesWhole(std::make_shared<Array<Object>>(Array<Object>::Objects{MakeInt(1)}),
                      [&] { return RyxObjectArrayCreateObjects(value, nullptr); });
  }},
  {"RyxObjectArrayClear", true, [] { return ChangesWhole(ThreeInts(), 0, RyxObjectArrayClear); }},
  {"RyxObjectArrayInsertObject", true, [] {
    RyxObject* const value = Int(9);
    return ChangesWhole(ThreeInts(), 4,
                        [value](RyxObject* a) { return RyxObjectArrayInsertObject(a, 1, value); });
  }},
  {"RyxObjectArrayPopObject", true, [] {
    return PopsWhole(ThreeInts(), [](RyxObject* a) { return RyxObjectArrayPopObject(a, 1); });
  }},
  {"RyxObjectDictCreatePairs", true, [] {
    RyxObject* const value = Int(1);
    auto const expected = std::make_shared<Dictionary<Object>>(
        Dictionary<Object>::Properties{{LongText, MakeInt(1)}});
    return MakesWhole(expected, [&] { return RyxObjectDictCreatePairs(LongText, value, nullptr); });
  }},
  {"RyxObjectDictContainsKey", true, [] {
    RyxObject* const dictionary = ThreeEntries();
    bool const found = Armed([&] { return RyxObjectDictContainsKey(dictionary, LongText); });
    RyxObjectRelease(dictionary);
    return !found;
  }},
  {"RyxObjectDictPeek", true, [] {
    RyxObject* const dictionary = ThreeEntries();
    RyxObject* const slot = Armed([&] { return RyxObjectDictPeek(dictionary, LongText); });
    EXPECT_TRUE(slot == nullptr || Peek(slot).As<Int32>().Get() == 3);
    RyxObjectRelease(dictionary);
    return slot == nullptr;
  }},
  {"RyxObjectDictClear", true, [] { return ChangesWhole(ThreeEntries(), 0, RyxObjectDictClear); }},
  {"RyxObjectDictSetObject", true, [] {
    RyxObject* const value = Int(9);
    return ChangesWhole(ThreeEntries(), 4,
                        [value](RyxObject* d) { return RyxObjectDictSetObject(d, NewKey, value); });
  }},
  {"RyxObjectDictPopObject", true, [] {
    return PopsWhole(ThreeEntries(),
                     [](RyxObject* d) { return RyxObjectDictPopObject(d, LongText); });
  }},
  {"RyxObjectSave: failed to save the RYX object: std::bad_alloc", true, [] {
    auto const sample = Sample();
    RyxObject const* const value = Convert(sample);
    bool const failed = HandsOutWhole(ToJson(sample), [value](char** data, std::size_t* size) {
      return RyxObjectSave(value, RyxObjectFormJson, data, size);
    });
    Convert(value);  // frees the handle
    return failed;
  }},
  {"RyxObjectRender: failed to render the RYX template: std::bad_alloc", true, [] {
    auto const sample = Sample();
    RyxObject const* const value = Convert(sample);
    bool const failed = HandsOutWhole(Render("{{#properties}}{{key}} {{/properties}}", sample),
                                      [value](char** text, std::size_t* size) {
      return RyxObjectRender("{{#properties}}{{key}} {{/properties}}", value, text, size);
    });
    Convert(value);  // frees the handle
    return failed;
  }},
  {"RyxObjectLoad: failed to load the RYX object: std::bad_alloc", true, [] {
    auto const sample = Sample();
    std::string const document = ToBinary(sample);
    RyxObject* loaded = nullptr;
    RyxObjectStatus const status = Armed([&] {
      return RyxObjectLoad(RyxObjectFormBinary, document.data(), document.size(), &loaded);
    });
    EXPECT_TRUE(status == RyxObjectStatusSuccess ? Peek(loaded).EqualTo(*sample)
                                                 : status == RyxObjectStatusAllocationFailure &&
                                                       loaded == nullptr);
    RyxObjectRelease(loaded);
    return status != RyxObjectStatusSuccess;
  }},
  {"RyxObjectLoadPlainJson: ", true, [] {
    std::string const text = ToPlainJson(Sample());
    auto const expected = FromPlainJson(text, ParseRequired("Dictionary"));
    RyxObject* loaded = nullptr;
    RyxObjectStatus const status = Armed([&] {
      return RyxObjectLoadPlainJson(text.data(), text.size(), "Dictionary", &loaded);
    });
    EXPECT_TRUE(status == RyxObjectStatusSuccess ? Peek(loaded).EqualTo(*expected)
                                                 : status == RyxObjectStatusAllocationFailure &&
                                                       loaded == nullptr);
    RyxObjectRelease(loaded);
    return status != RyxObjectStatusSuccess;
  }},
  {"ToJson compact", false, [] { return SavesWhole(Laid(JsonLayout::Compact, ToJson)); }},
  {"ToPlainJson", false, [] { return SavesWhole(Laid(JsonLayout::Indented, ToPlainJson)); }},
  {"FromPlainJson", false, [] {
    // Without a schema the JSON decides: the integers come back as Int64.
    std::string const text = ToPlainJson(Sample());
    Required const schema = ParseRequired("Dictionary");
    auto const expected = FromPlainJson(text, schema);
    auto const value = ArmedOrBadAlloc([&] { return FromPlainJson(text, schema); });
    if (value) {
      EXPECT_TRUE(*value && (*value)->EqualTo(*expected));
    }
    return !value;
  }},
  {"ToJsonThroughArchive", false, [] {
    return SavesWhole(Laid(JsonLayout::Indented, ToJsonThroughArchive));
  }},
  {"ToBinary, first on its thread", false, [] {
    // The first save on a thread also sets up that thread's lookups.
    auto const sample = Sample();
    std::string const expected = ToBinary(sample);
    std::optional<std::string> text;
    std::thread([&] { text = ArmedOrBadAlloc([&] { return ToBinary(sample); }); }).join();
    if (text) {
      EXPECT_EQ(*text, expected);
    }
    return !text;
  }},
  {"ToXml", false, [] { return SavesWhole(ToXml); }},
  {"ToBinaryThroughArchive", false, [] { return SavesWhole(ToBinaryThroughArchive); }},
  {"FromJson", false, [] { return LoadsWhole(Laid(JsonLayout::Indented, ToJson), FromJson); }},
  {"FromJsonThroughArchive", false, [] {
    return LoadsWhole(Laid(JsonLayout::Indented, ToJson), FromJsonThroughArchive);
  }},
  {"FromXml", false, [] { return LoadsWhole(ToXml, FromXml); }},
  {"FromBinary", false, [] { return LoadsWhole(ToBinary, FromBinary); }},
  {"FromBinaryThroughArchive", false, [] {
    return LoadsWhole(ToBinary, FromBinaryThroughArchive);
  }},
  // A registered record goes through its own functions in every form.
  {"record ToJson", false, [] { return SavesWhole(Laid(JsonLayout::Compact, ToJson), RecordSample); }},
  {"record FromJson", false, [] {
    return LoadsWhole(Laid(JsonLayout::Compact, ToJson), FromJson, RecordSample);
  }},
  {"record ToXml", false, [] { return SavesWhole(ToXml, RecordSample); }},
  {"record FromXml", false, [] { return LoadsWhole(ToXml, FromXml, RecordSample); }},
  {"record ToBinary", false, [] { return SavesWhole(ToBinary, RecordSample); }},
  {"record FromBinary", false, [] { return LoadsWhole(ToBinary, FromBinary, RecordSample); }},
  {"record Copy", false, [] {
    auto const sample = RecordSample();
    auto const copy = ArmedOrBadAlloc([&] { return Object::Copy(*sample); });
    if (copy) {
      EXPECT_TRUE(*copy && (*copy)->EqualTo(*sample));
    }
    return !copy;
  }},
  {"record Set", false, [] {
    // A failed Set leaves the record as it was.
    auto const sample = RecordSample();
    auto const target = std::make_shared<test::EverythingRecord>();
    bool const set = ArmedOrBadAlloc([&] { target->Set(*sample); return true; }).has_value();
    if (set) {
      EXPECT_TRUE(target->EqualTo(*sample));
    } else {
      EXPECT_TRUE(target->EqualTo(test::EverythingRecord()));
    }
    return !set;
  }},
  {"FindProblems", false, [] {
    // A dictionary to sort, and a null value to report.
    auto const value = std::make_shared<Array<Object>>(std::vector<std::shared_ptr<Object>>{
        std::const_pointer_cast<Object>(Sample()), MakeInt(0)});
    *value->GetSlot(1) = nullptr;
    std::vector<Problem> const expected = FindProblems(*value);
    auto const problems = ArmedOrBadAlloc([&] { return FindProblems(*value); });
    if (problems) {
      EXPECT_EQ(*problems, expected);
    }
    return !problems;
  }},
};
// clang-format on

TEST(AllocationFailure, EveryCallFailsAsDocumentedOrSucceedsWholeAndLeaksNothing) {
  RyxLoggingSetSink(KeepLog, nullptr);
  for (Case const& c : Cases) {
    SCOPED_TRACE(c.function);
    allocations.refuseAt = 0;
    EXPECT_FALSE(c.run()) << "fails with every allocation granted";
    for (bool const rest : {false, true}) {
      for (long k = 1;; ++k) {
        allocations.refuseAt = k;
        allocations.refuseRest = rest;
        long const live = allocations.live;
        bool const failed = c.run();
        long const leaked = allocations.live - live;
        std::string const refusal =
            "allocation " + std::to_string(k) + (rest ? " and every later one" : "") + " refused";
        EXPECT_EQ(leaked, 0) << refusal;
        int const expectedLogs = failed && c.logged ? 1 : 0;
        EXPECT_EQ(logs.count, expectedLogs) << refusal << "; last log: " << logs.last;
        if (expectedLogs == 1) {
          EXPECT_EQ(std::strncmp(logs.last, c.function, std::strlen(c.function)), 0) << logs.last;
        }
        if (allocations.refused == 0) {
          break;
        }
      }
    }
  }
  RyxLoggingSetSink(nullptr, nullptr);
}

}  // namespace
