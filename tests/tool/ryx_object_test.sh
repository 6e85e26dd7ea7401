#!/usr/bin/env bash
# Runs the ryx-object tool on small documents of every form and checks what it
# writes and its exit status; with the example's plugin, on documents holding
# its kind todo.Task.
#   ryx_object_test.sh TOOL PLUGIN
set -u
tool="$1"
plugin="$2"
here="$(cd "$(dirname "$0")" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cd "$work"
passed=0
failed=0

fail() {
  echo "FAILED: $1"
  sed 's/^/  stderr: /' err
  failed=$((failed + 1))
}

# expect STATUS NAME COMMAND...: runs COMMAND (stdout to out, stderr to err)
# and checks its exit status; failures must say one "ryx-object: " line and
# successes nothing on stderr.
expect() {
  local status="$1" name="$2"
  shift 2
  "$@" >out 2>err
  local got=$?
  if [ "$got" -ne "$status" ]; then
    fail "$name: exit status $got, expected $status"
  elif [ "$status" -ne 0 ] && ! { [ "$(wc -l <err)" -eq 1 ] && grep -q '^ryx-object: ' err; }; then
    fail "$name: expected one line starting with 'ryx-object: ' on stderr"
  elif [ "$status" -eq 0 ] && [ -s err ]; then
    fail "$name: wrote to stderr"
  else
    passed=$((passed + 1))
  fi
}

# same NAME FILE EXPECTED-FILE
same() {
  if cmp -s "$2" "$3"; then
    passed=$((passed + 1))
  else
    echo "FAILED: $1"
    diff "$3" "$2" | sed 's/^/  /'
    failed=$((failed + 1))
  fi
}

null_value="Null value: an unknown type name or a null record was loaded here"

cat >tree.expected <<'TREE'
ryx.object.Dictionary {
  "mixed": ryx.object.Array [
    [0] ryx.object.Int8 65
    [1] ryx.object.UInt64 18446744073709551615
    [2] ryx.object.Double 0.1
    [3] ryx.object.Bool true
    [4] null
    [5] ryx.object.Enum 2 of 0x00003039
    [6] ryx.object.ConstPointer to ryx.object.Int32
  ]
  "name": ryx.object.String "widget \"w\"\n"
  "sizes": ryx.object.Array required ryx.object.Int32 [
    [0] ryx.object.Int32 -1
    [1] ryx.object.Int32 2
  ]
}
TREE

# Every form round trips, its form recognised from its first bytes, from a
# file and from standard input.
expect 0 "print a JSON file" "$tool" print "$here/record.json"
same "the tree of the JSON document" out tree.expected
for form in json xml binary; do
  expect 0 "convert to $form" "$tool" convert --to "$form" -o "record.$form" "$here/record.json"
  expect 0 "print $form from a file" "$tool" print "record.$form"
  same "the tree of the $form document" out tree.expected
  expect 0 "print $form from standard input" sh -c "\"$tool\" print --from $form <record.$form"
  same "the tree of the $form document from standard input" out tree.expected
  expect 0 "check $form" "$tool" check "record.$form"
  same "check says nothing" out /dev/null
done

# The compact layout holds no whitespace outside strings and loads the same.
expect 0 "convert to compact JSON" "$tool" convert --to json --compact -o compact.json record.json
if tr -d '\n' <compact.json | grep -q '[{,:\[] \|^ '; then
  fail "compact JSON holds whitespace"
fi
expect 0 "print compact JSON" "$tool" print compact.json
same "the tree of the compact document" out tree.expected

# The binary form in both byte orders, written by hand: an array with the
# default schema holding the Int32 7.
"$tool" id ryx.object.Array ryx.object.Int32 >ids
array="$(awk 'NR == 1 { print substr($3, 3) }' ids)"
int32="$(awk 'NR == 2 { print substr($3, 3) }' ids)"
big() { sed 's/../\\x&/g' <<<"$1"; }
little() { sed 's/\(..\)\(..\)\(..\)\(..\)/\\x\4\\x\3\\x\2\\x\1/' <<<"$1"; }
zeros=$(printf '\\x00%.0s' {1..12})
printf "\x00$(big "$array")$zeros\x00\x00\x00\x00\x00\x00\x00\x01$(big "$int32")\x00\x00\x00\x07" >big.bin
printf "\x01$(little "$array")$zeros\x01\x00\x00\x00\x00\x00\x00\x00$(little "$int32")\x07\x00\x00\x00" >little.bin
printf 'ryx.object.Array [\n  [0] ryx.object.Int32 7\n]\n' >array.expected
for order in big little; do
  expect 0 "print $order-endian binary" "$tool" print "$order.bin"
  same "the tree of the $order-endian document" out array.expected
done

# Bad documents of every form: the loader's reason, or only the status.
head -c 30 big.bin >cut.bin
printf '{"typename": "ryx.object.Int32", "value": "seven"}' >bad.json
printf '<cereal><typename>ryx.object.Int32</typename><value>seven</value></cereal>' >bad.xml
printf 'hello' >bad.text
for bad in cut.bin bad.json bad.xml bad.text; do
  expect 1 "check $bad" "$tool" check "$bad"
  grep -q "^ryx-object: $bad[: ]" err || fail "check $bad: the message names the file"
  expect 1 "convert $bad" "$tool" convert --to json "$bad"
  "$tool" check --quiet "$bad" >out 2>err
  [ $? -eq 1 ] && [ ! -s out ] && [ ! -s err ] && passed=$((passed + 1)) ||
    fail "check --quiet $bad: status 1 and no output"
done

# A failed load is placed as compilers place errors: FILE:LINE:COLUMN for
# text, FILE: byte N for binary, with the path of the value at fault.
printf '{"typename": "ryx.object.Array", "required": {"type": 0, "child_types": []},\n "objects": [{"typename": "ryx.object.Int8", "value": 1},\n  {"typename": "ryx.object.Int8", "value": "x"}]}' >second.json
expect 1 "a bad second element" "$tool" check second.json
grep -qx 'ryx-object: second.json:3:44: JSON parse error: data_.f.flags & kIntFlag (at /1)' err ||
  fail "the bad element is placed by line, column and path"
expect 1 "a cut binary document" "$tool" check cut.bin
grep -q '^ryx-object: cut.bin: byte [0-9]*: Failed to read' err || fail "a binary failure is placed by byte"

# Plain JSON: written and read with --to plain / --from plain, typed by
# --schema; a typed load of plain JSON says --from plain exists.
printf '{"name": "widget", "sizes": [1, 2]}' >plain.json
expect 0 "print plain JSON" "$tool" print --from plain plain.json
printf 'ryx.object.Dictionary {\n  "name": ryx.object.String "widget"\n  "sizes": ryx.object.Array [\n    [0] ryx.object.Int64 1\n    [1] ryx.object.Int64 2\n  ]\n}\n' >plain.expected
same "the tree of plain JSON" out plain.expected
printf '{"sizes": [1, 2]}' >sizes.json
expect 0 "convert plain JSON under a schema" "$tool" convert --from plain \
  --schema 'Dictionary<Array<Int32>>' --to json --compact sizes.json
grep -q '"typename":"ryx.object.Int32","value":2' out || fail "the schema's kinds are read"
expect 1 "plain JSON that does not conform" "$tool" check --from plain --schema 'Dictionary<String>' plain.json
grep -q '^ryx-object: plain.json:1:29: expected ryx.object.String, found an array (at /sizes)$' err ||
  fail "the non-conforming member is named by line, column and path"
for plain in '{"sizes": [1, 2]}' '[1, 2]'; do
  printf '%s' "$plain" >untyped.json
  expect 1 "plain JSON read as a typed document: $plain" "$tool" check untyped.json
  grep -q 'read it with --from plain' err || fail "a typed load of $plain suggests --from plain"
done
expect 2 "a schema without --from plain" "$tool" check --schema Int32 plain.json
expect 2 "a schema that is not one" "$tool" check --from plain --schema 'Array<' plain.json
expect 0 "convert plain JSON to plain JSON" "$tool" convert --from plain --to plain --compact plain.json
grep -qx '{"sizes":\[1,2\],"name":"widget"}\|{"name":"widget","sizes":\[1,2\]}' out ||
  fail "plain JSON converts to the same plain JSON"
expect 1 "a pointer has no plain form" "$tool" convert --to plain record.json
grep -q 'at /mixed/6: ryx.object.ConstPointer has no plain JSON form' err ||
  fail "the value without a plain form is named by its path"

# --strict looks through what loaded: record.json holds a null value; a sound
# document passes; each problem is one line naming the file and, as a JSON
# string, the value's JSON Pointer (keys escaped, so a line stays one line).
for form in json xml binary; do
  expect 1 "check --strict $form" "$tool" check --strict "record.$form"
  grep -qxF "ryx-object: record.$form: \"/mixed/4\": $null_value" err ||
    fail "check --strict $form: names the null value's file and pointer"
done
expect 0 "check --strict a sound document" "$tool" check --strict big.bin
int32_id="$(awk 'NR == 2 { print $2 }' ids)"
cat >loose.json <<JSON
{"typename": "ryx.object.Dictionary", "properties": [
  {"key": "line\nbreak/a~b", "value": {"typename": "ryx.object.Int33", "value": 1}},
  {"key": "sizes", "value": {"typename": "ryx.object.Array",
    "required": {"type": $int32_id, "child_types": []},
    "objects": [{"typename": "ryx.object.Int32", "value": 1}, {"typename": "ryx.object.Bool", "value": true}]}}
], "required": {"type": 0, "child_types": []}}
JSON
cat >loose.expected <<TEXT
ryx-object: standard input: "/line\\nbreak~1a~0b": $null_value
ryx-object: standard input: "/sizes/1": The object 'ryx.object.Bool' did not match the required type 'ryx.object.Int32'
TEXT
expect 0 "plain check passes what --strict refuses" "$tool" check loose.json
"$tool" check --strict <loose.json >out 2>err
[ $? -eq 1 ] && [ ! -s out ] && passed=$((passed + 1)) || fail "check --strict: status 1, nothing on stdout"
same "check --strict reports every problem in key order" err loose.expected
"$tool" check --strict --quiet loose.json >out 2>err
[ $? -eq 1 ] && [ ! -s out ] && [ ! -s err ] && passed=$((passed + 1)) ||
  fail "check --strict --quiet: status 1 and no output"
expect 1 "check --strict a document that does not load" "$tool" check --strict bad.json

# Text on standard output ends with a line feed, and is what -o writes; the
# binary form is left as it is (an Int32: order byte, id, value).
ends_with_line_feed() { [ "$(tail -c 1 "$1" | od -An -tx1 | tr -d ' ')" = 0a ]; }
for command in "convert --to json" "convert --to json --compact" "convert --to xml" print; do
  expect 0 "$command" "$tool" $command record.json
  ends_with_line_feed out && passed=$((passed + 1)) || fail "$command: ends with a line feed"
  mv out printed
  expect 0 "$command -o" "$tool" $command -o written record.json
  same "$command: -o writes what standard output gets" written printed
done
printf '{"typename": "ryx.object.Int32", "value": 7}' >seven.json
expect 0 "convert to binary" "$tool" convert --to binary -o seven.bin seven.json
[ "$(wc -c <seven.bin)" -eq 9 ] && passed=$((passed + 1)) || fail "the binary form gains no byte"

# Each command's help ends with an example of it.
for command in convert print check render id types; do
  expect 0 "$command --help" "$tool" "$command" --help
  grep -q "^  ryx-object $command " out || fail "$command --help shows an example"
done
expect 0 "--help" "$tool" --help
grep -q "^  ryx-object check --strict " out || fail "--help shows examples"

# A template over the document.
printf '{{#properties}}{{key}}:{{#value}}{{#objects}}{{#is.typename.ryx.object.Int32}} {{value}}%s;{{/properties}}' \
  '{{/is.typename.ryx.object.Int32}}{{/objects}}{{/value}}' >list.mustache
expect 0 "render" "$tool" render list.mustache record.binary
tr ';' '\n' <out | sort >rendered
printf 'mixed:\nname:\nsizes: -1 2\n' >rendered.expected
same "the rendered template" rendered rendered.expected

# Type ids: id agrees with the registry's list of its 17 types.
expect 0 "types" "$tool" types
[ "$(wc -l <out)" -eq 17 ] && grep -qxF "$(sed -n 2p ids)" out && passed=$((passed + 1)) ||
  fail "types lists 17 types, ryx.object.Int32 with the id that id gives"

# Usage errors.
expect 2 "no subcommand" "$tool"
expect 2 "an unknown form" "$tool" convert --to yaml record.json
expect 2 "a missing --to" "$tool" convert record.json
expect 2 "a missing file" "$tool" print missing.json
expect 2 "an output that cannot be created" "$tool" convert --to xml -o missing/out.xml record.json
if command -v script >/dev/null; then
  # script gives the tool a terminal as standard output.
  expect 2 "binary to a terminal" sh -c 'script -qec "\"$1\" convert --to binary record.json 2>tty.err" \
    /dev/null >/dev/null; status=$?; cat tty.err >&2; exit $status' sh "$tool"
fi

# A kind of a plugin's own: every subcommand reads and writes documents
# holding it once the plugin is loaded.
cat >task.expected <<'TREE'
todo.Task {
  "blocked_by": todo.Task {
    "blocked_by": null
    "done": ryx.object.Bool true
    "priority": ryx.object.UInt32 2
    "tags": ryx.object.Array required ryx.object.String []
    "title": ryx.object.String "buy paint"
  }
  "done": ryx.object.Bool false
  "priority": ryx.object.UInt32 1
  "tags": ryx.object.Array required ryx.object.String [
    [0] ryx.object.String "garden"
    [1] ryx.object.String "weekend"
  ]
  "title": ryx.object.String "paint the fence"
}
TREE
with_plugin=("$tool" --plugin "$plugin")
for form in json xml binary; do
  expect 0 "convert a task to $form" "${with_plugin[@]}" convert --to "$form" -o "task.$form" \
    "$here/task.json"
  expect 0 "print a task from $form" "${with_plugin[@]}" print "task.$form"
  same "the tree of the task's $form document" out task.expected
  expect 0 "check a task in $form" "${with_plugin[@]}" check "task.$form"
done
expect 0 "convert a task back to compact JSON" "${with_plugin[@]}" convert --to json --compact task.binary
same "the task's compact JSON" out "$here/task.json"
printf '{{title}}{{#blocked_by}}, after {{title}}{{/blocked_by}}{{#tags}} #{{.}}{{/tags}}' >task.mustache
expect 0 "render a task" "${with_plugin[@]}" render task.mustache task.binary
printf 'paint the fence, after buy paint #garden #weekend' >task.rendered
same "the rendered task" out task.rendered
expect 0 "types with a plugin" "${with_plugin[@]}" --plugin "$plugin" types
[ "$(wc -l <out)" -eq 18 ] && grep -q '^todo\.Task ' out && passed=$((passed + 1)) ||
  fail "types lists the 17 types and todo.Task"
# Without the plugin the kind is unknown: JSON reads it as null, the binary
# form cannot read past it.
expect 0 "print a task without the plugin" "$tool" print "$here/task.json"
same "an unknown kind reads as null" out <(echo null)
expect 1 "check a binary task without the plugin" "$tool" check task.binary
expect 2 "a plugin that cannot be loaded" "$tool" --plugin missing.so types
grep -q "missing.so" err || fail "the loader's message names the plugin"
expect 2 "a file that is no shared library" "$tool" --plugin "$here/task.json" types

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
