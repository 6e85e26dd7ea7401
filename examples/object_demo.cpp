// A tour of the object model: build values, cast them, copy them, walk them
// and check them against a schema, printing what happens at each step.
#include <ryx/object.hpp>

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace ryx::object;

namespace {

void Section(char const* title) { std::cout << "\n== " << title << '\n'; }

}  // namespace

int main() {
  Section("values and their types");
  std::vector<std::shared_ptr<Object>> values{
      std::make_shared<Int32>(42), std::make_shared<Double>(2.5), std::make_shared<String>("hello"),
      std::make_shared<Bool>(true)};
  for (auto const& value : values) {
    std::cout << *value << "  is Int32: " << std::boolalpha << value->Is<Int32>() << '\n';
  }

  Section("checked casts");
  std::cout << "As<Int32>() of the first value: " << values[0]->As<Int32>().Get() << '\n';
  try {
    values[2]->As<Int32>();
  } catch (BadCast const& e) {
    std::cout << "As<Int32>() of the string: BadCast: " << e.what() << '\n';
  }

  Section("taking values over, parsing strings");
  auto const number = std::make_shared<Int32>();
  number->Set(String("  1234 apples"));
  std::cout << "Int32 set from \"  1234 apples\": " << number->Get() << '\n';
  try {
    std::make_shared<UInt8>()->Set(String("300"));
  } catch (std::out_of_range const& e) {
    std::cout << "UInt8 set from \"300\": " << e.what() << '\n';
  }

  Section("copies are independent");
  auto const copy = Object::Copy(*values[2]);
  copy->As<String>().Set("changed");
  std::cout << "original: " << values[2]->As<String>().Get()
            << ", copy: " << copy->As<String>().Get() << ", equal: " << values[2]->EqualTo(*copy)
            << '\n';

  Section("walking and checking against a schema");
  Required const int32Elements(Object::TypeIdOf<Int32>());
  Required const perPosition{Required(Object::TypeIdOf<Int32>()),
                             Required(Object::TypeIdOf<Double>())};
  std::cout << "schema: " << int32Elements << '\n';
  for (auto it = container::Begin(values); it; ++it) {
    try {
      int32Elements.Check(*it);
      std::cout << "  accepted " << *it << '\n';
    } catch (std::invalid_argument const& e) {
      std::cout << "  rejected: " << e.what() << '\n';
    }
  }
  std::cout << "per-position schema: " << perPosition << '\n';
  std::vector<std::shared_ptr<Object>> const pair{values[0], values[1]};
  perPosition.Check(pair);
  std::cout << "  accepts [Int32, Double]\n";
  try {
    perPosition.Check(values);
  } catch (std::invalid_argument const& e) {
    std::cout << "  rejects four values: " << e.what() << '\n';
  }

  Section("containers under a schema");
  Array<Object> numbers(int32Elements, {std::make_shared<Int32>(1), std::make_shared<Int32>(2)});
  numbers.Append(std::make_shared<Int32>(3));
  try {
    numbers.Append(std::make_shared<String>("four"));
  } catch (std::invalid_argument const& e) {
    std::cout << "appending a String to an array of Int32: " << e.what() << '\n';
  }
  std::cout << "the array still holds " << numbers.Size() << " elements:";
  for (Object const& element : static_cast<Object const&>(numbers)) {
    std::cout << ' ' << element.As<Int32>().Get();
  }
  std::cout << '\n';

  auto const record = std::make_shared<Dictionary<Object>>();
  record->Insert("name", std::make_shared<String>("widget"));
  record->Insert("sizes", std::make_shared<Array<Object>>(numbers));
  try {
    record->Insert("name", std::make_shared<String>("again"));
  } catch (std::logic_error const& e) {
    std::cout << "inserting \"name\" twice: " << e.what() << '\n';
  }

  Section("deep copies");
  auto const recordCopy = Object::Copy(*record);
  recordCopy->As<Dictionary<Object>>().Get("sizes")->As<Array<Object>>().Append(
      std::make_shared<Int32>(4));
  std::cout << "after appending to the copy's array: original has "
            << record->Get("sizes")->As<Array<Object>>().Size() << " sizes, copy has "
            << recordCopy->As<Dictionary<Object>>().Get("sizes")->As<Array<Object>>().Size()
            << ", equal: " << record->EqualTo(*recordCopy) << '\n';

  Section("making values from a schema");
  auto const madeArray = Required(Object::TypeIdOf<Array<Object>>(), {int32Elements}).Make();
  std::cout << "Required(Array, {Int32}).Make(): " << *madeArray << " with element schema "
            << madeArray->GetRequired() << '\n';
  auto const made = Required(Object::TypeIdOf<Double>()).Make();
  std::cout << "Required(Double).Make(): " << *made << " holding " << made->As<Double>().Get()
            << '\n';

  Section("saving and loading in every form");
  // The record built above: a name and an array of sizes under an Int32 schema.
  std::shared_ptr<Object const> const saved = record;
  std::string const json = ToJson(saved);
  std::string const xml = ToXml(saved);
  std::string const binary = ToBinary(saved);
  std::cout << "JSON:\n" << json << "\nXML: " << xml.size() << " characters, binary: "
            << binary.size() << " bytes\n";
  char const* const forms[] = {"JSON", "XML", "binary"};
  int form = 0;
  for (auto const& loaded : {FromJson(json), FromXml(xml), FromBinary(binary)}) {
    std::cout << "  loaded back from " << forms[form++] << ", equal: " << loaded->EqualTo(*saved)
              << '\n';
  }
  std::cout << "rendered: "
            << Render("{{#properties}}{{key}}: "
                      "{{#value.is.typename.ryx.object.String}}{{value.value}}"
                      "{{/value.is.typename.ryx.object.String}}"
                      "{{#value.objects}}{{value}} {{/value.objects}}; {{/properties}}",
                      saved)
            << '\n';
  return 0;
}
