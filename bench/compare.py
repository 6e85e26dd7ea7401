#!/usr/bin/env python3
"""Prints the serialization comparison from Google Benchmark JSON results.

    compare.py RESULTS.json [ALLOCATOR=RESULTS.json ...]

The first file is the full run with the system allocator; each further one,
named after its allocator, holds the runs repeated with that allocator
preloaded. Every figure is the best of the repetitions, in CPU time.
"""
import json
import sys


def load(path):
    with open(path) as f:
        data = json.load(f)
    best = {}
    for run in data["benchmarks"]:
        if run.get("run_type") == "aggregate" or "error_occurred" in run:
            continue
        name = run["run_name"]
        if name not in best or run["per_record"] < best[name]["per_record"]:
            best[name] = run
    return data["context"], best


def per_record_ns(run):
    return run["per_record"] * 1e9


def text_bytes(run):
    return run["bytes_per_second"] * run["per_record"]


def main(argv):
    context, runs = load(argv[1])
    others = [(arg.split("=", 1)[0], load(arg.split("=", 1)[1])[1]) for arg in argv[2:]]

    model = "unknown processor"
    try:
        with open("/proc/cpuinfo") as f:
            model = next(line.split(":", 1)[1].strip() for line in f
                         if line.startswith("model name"))
    except (OSError, StopIteration):
        pass
    print(f"Run of {context['date']} on {context['host_name']} ({model}): "
          f"{context['num_cpus']} CPUs at {context['mhz_per_cpu']} MHz, load average "
          f"{', '.join(f'{x:.2f}' for x in context.get('load_avg', []))}")
    print("Figures: best of the repetitions, CPU time per record of "
          "the 200,000-record document.\n")

    print("| Benchmark | per record | MB/s | bytes per record |")
    print("|---|---|---|---|")
    for name, run in runs.items():
        ns = per_record_ns(run)
        shown = f"{ns / 1000:.2f} µs" if ns >= 1000 else f"{ns:.0f} ns"
        print(f"| {name} | {shown} | {run['bytes_per_second'] / 1e6:.0f} | "
              f"{text_bytes(run):.0f} |")

    def ns(name):
        return per_record_ns(runs[name])

    floor = ns("RapidJson/ParseOurText/Compact") + ns("BuildAndRelease")
    plain_floor = ns("RapidJson/ParsePlainText") + ns("BuildAndRelease")
    indented_floor = ns("RapidJson/ParseOurText/Indented") + ns("BuildAndRelease")
    # (what, ours, yardstick, ratio, target, met)
    targets = [
        ("FromJson compact / nlohmann parse", ns("FromJson/Compact"), ns("Nlohmann/Parse"),
         "≤ 4×", lambda r: r <= 4),
        ("ToJson compact / nlohmann dump", ns("ToJson/Compact"), ns("Nlohmann/Dump"),
         "≤ 8×", lambda r: r <= 8),
        ("FromJson compact / (rapidjson Parse + BuildAndRelease)", ns("FromJson/Compact"), floor,
         "≤ 1.5×", lambda r: r <= 1.5),
        ("ToJson compact / rapidjson Writer from a DOM", ns("ToJson/Compact"),
         ns("RapidJson/WriteOurText/Compact"), "≤ 1.5×", lambda r: r <= 1.5),
        ("FromJson indented / (rapidjson Parse + BuildAndRelease)", ns("FromJson/Indented"),
         indented_floor, "—", None),
        ("ToJson indented / rapidjson PrettyWriter from a DOM", ns("ToJson/Indented"),
         ns("RapidJson/WriteOurText/Indented"), "—", None),
        ("archive path / FromJson, indented", ns("FromJsonThroughArchive/Indented"),
         ns("FromJson/Indented"), "≥ 3×", lambda r: r >= 3),
        ("archive path / ToJson, indented", ns("ToJsonThroughArchive/Indented"),
         ns("ToJson/Indented"), "≥ 3×", lambda r: r >= 3),
        ("FromBinary / BuildAndRelease", ns("FromBinary"), ns("BuildAndRelease"), "≤ 1.3×",
         lambda r: r <= 1.3),
        ("FromBinary / nlohmann from_cbor", ns("FromBinary"), ns("Nlohmann/FromCbor"), "< 1×",
         lambda r: r < 1),
        ("ToBinary / nlohmann to_cbor", ns("ToBinary"), ns("Nlohmann/ToCbor"), "< 1×",
         lambda r: r < 1),
        ("FromPlainJson / nlohmann parse", ns("FromPlainJson"), ns("Nlohmann/Parse"), "≤ 1×",
         lambda r: r <= 1),
        ("FromPlainJson, records' schema / nlohmann parse", ns("FromPlainJson/Schema"),
         ns("Nlohmann/Parse"), "≤ 1×", lambda r: r <= 1),
        ("FromPlainJson / (rapidjson Parse of plain text + BuildAndRelease)",
         ns("FromPlainJson"), plain_floor, "≤ 1.2×", lambda r: r <= 1.2),
        ("FromPlainJson, records' schema / (rapidjson Parse + BuildAndRelease)",
         ns("FromPlainJson/Schema"), plain_floor, "≤ 1.2×", lambda r: r <= 1.2),
        ("ToPlainJson compact / nlohmann dump", ns("ToPlainJson/Compact"), ns("Nlohmann/Dump"),
         "≤ 1×", lambda r: r <= 1),
    ]
    print("\n| Ratio | ns per record | ratio | target | met |")
    print("|---|---|---|---|---|")
    for what, ours, theirs, target, met in targets:
        ratio = ours / theirs
        verdict = "—" if met is None else ("yes" if met(ratio) else "**no**")
        print(f"| {what} | {ours:.0f} / {theirs:.0f} | {ratio:.2f}× | {target} | {verdict} |")

    indented = text_bytes(runs["ToJson/Indented"])
    compact = text_bytes(runs["ToJson/Compact"])
    plain = text_bytes(runs["Nlohmann/Dump"])
    print(f"\nText per record: indented {indented:.0f} bytes, compact {compact:.0f} bytes "
          f"({compact / indented:.0%} of indented), plain JSON of the same records "
          f"{plain:.0f} bytes (compact is {compact / plain:.1f}× that).")

    if others:
        names = ["FromBinary", "BuildAndRelease"]
        print("\n| Allocator | " + " | ".join(names) + " | FromBinary / BuildAndRelease |")
        print("|---|" + "---|" * (len(names) + 1))
        for label, results in [("glibc", runs)] + others:
            cells = [per_record_ns(results[n]) for n in names]
            print(f"| {label} | " + " | ".join(f"{c:.0f} ns" for c in cells) +
                  f" | {cells[0] / cells[1]:.2f}× |")


if __name__ == "__main__":
    main(sys.argv)
