#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Reads what the benchmarks wrote and prints the results table in Markdown, with the ratios
# and whether each goal is met.
# Usage: table.py SHEET.json STARTUP.json "LOAD BEFORE" "LOAD AFTER"
import json
import sys

GAMES = [0, 1, 10, 50, 99]
# Growth counts as linear when the fitted line explains the times (R² at least this) and the
# cost of one more game late in the evening is at most this multiple of the cost in its
# middle; a cost that grew with the sheet's length would give about 2.5 between 10→50 and 50→99.
LINEAR_R2 = 0.99
LINEAR_SLOPE_RATIO = 1.5


def medians(path):
    with open(path) as f:
        report = json.load(f)
    result = {}
    for b in report["benchmarks"]:
        if b.get("run_type") == "aggregate" and b.get("aggregate_name") != "median":
            continue
        if b.get("error_occurred"):
            sys.exit(f"benchmark {b['name']} failed: {b.get('error_message')}")
        name, arg = b["run_name"].split("/")[:2]
        scale = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}[b["time_unit"]]
        result[(name, int(arg))] = {"us": b["real_time"] * scale, **{k: b[k] for k in ("pages", "lines") if k in b}}
    return result, report["context"]


def fit(xs, ys):
    n = len(xs)
    mx, my = sum(xs) / n, sum(ys) / n
    sxx = sum((x - mx) ** 2 for x in xs)
    slope = sum((x - mx) * (y - my) for x, y in zip(xs, ys)) / sxx
    intercept = my - slope * mx
    ss_res = sum((y - intercept - slope * x) ** 2 for x, y in zip(xs, ys))
    ss_tot = sum((y - my) ** 2 for y in ys)
    return intercept, slope, 1 - ss_res / ss_tot


def per_game(ys):
    return [(ys[i] - ys[i - 1]) / (GAMES[i] - GAMES[i - 1]) for i in range(1, len(GAMES))]


def fmt_us(us):
    return f"{us / 1000:.2f} ms" if us >= 1000 else f"{us:.0f} µs"


def met(ok):
    return "met" if ok else "**missed**"


def main():
    sheet, context = medians(sys.argv[1])
    with open(sys.argv[2]) as f:
        startup = json.load(f)
    load_before, load_after = sys.argv[3], sys.argv[4]

    ours = [sheet[("BM_Refresh", n)]["us"] for n in GAMES]
    literal = [sheet[("BM_RefreshLiteral", n)]["us"] for n in GAMES]
    print(f"Load average (1, 5, 15 min) before the runs: {load_before}; after: {load_after}")
    print(f"Google Benchmark: {context.get('num_cpus')} CPUs at {context.get('mhz_per_cpu')} MHz, "
          f"{context.get('host_name')}, {context.get('date')}")
    print()
    print("Sheet refresh (median wall time; the word-for-word writing is the yardstick):")
    print()
    print("| Games | Lines | Refresh (ours) | Word-for-word | Ours / word-for-word |")
    print("|---:|---:|---:|---:|---:|")
    for n, a, b in zip(GAMES, ours, literal):
        print(f"| {n} | {sheet[('BM_Refresh', n)].get('lines', 0):.0f} | {fmt_us(a)} | {fmt_us(b)} | {a / b:.2f} |")
    print()
    a, b, r2 = fit(GAMES, ours)
    steps = per_game(ours)
    literal_steps = per_game(literal)
    slope_ratio = steps[-1] / steps[-2]
    linear = r2 >= LINEAR_R2 and slope_ratio <= LINEAR_SLOPE_RATIO
    labels = [f"{GAMES[i - 1]}→{GAMES[i]}" for i in range(1, len(GAMES))]
    print("Cost of one more game, by stretch of the evening:")
    print()
    print("| Stretch | " + " | ".join(labels) + " |")
    print("|---|" + "---:|" * len(labels))
    print("| Refresh (ours) | " + " | ".join(fmt_us(s) for s in steps) + " |")
    print("| Word-for-word | " + " | ".join(fmt_us(s) for s in literal_steps) + " |")
    print()
    ratio99 = ours[-1] / literal[-1]
    sp_ours, sp_floor = startup["ours"], startup["floor"]
    t_ratio = sp_ours["median_time_ms"] / sp_floor["median_time_ms"]
    m_ratio = sp_ours["median_peak_rss_kib"] / sp_floor["median_peak_rss_kib"]
    c_ratio = sp_ours["median_cpu_ms"] / sp_floor["median_cpu_ms"]
    pdf = sheet[("BM_PrintPdf", 99)]
    rss_ours, rss_floor = sp_ours["median_peak_rss_kib"] / 1024, sp_floor["median_peak_rss_kib"] / 1024
    rows = [
        ("Refresh grows linearly, 0–99 games", f"{fmt_us(a)} + {fmt_us(b)} per game, R² {r2:.4f}",
         "per game 50→99 vs 10→50", f"{slope_ratio:.2f}", f"R² ≥ {LINEAR_R2}, ratio ≤ {LINEAR_SLOPE_RATIO}",
         met(linear)),
        ("Refresh at 99 games", fmt_us(ours[-1]), f"word-for-word {fmt_us(literal[-1])}", f"{ratio99:.2f}",
         "≤ 0.33", met(ratio99 <= 1 / 3)),
        (f"Start-up to main window shown (median of {sp_ours['runs']})", f"{sp_ours['median_time_ms']:.1f} ms",
         f"floor {sp_floor['median_time_ms']:.1f} ms", f"{t_ratio:.3f}", "≤ 1.10", met(t_ratio <= 1.10)),
        (f"Processor time until then (median of {sp_ours['runs']})", f"{sp_ours['median_cpu_ms']:.1f} ms",
         f"floor {sp_floor['median_cpu_ms']:.1f} ms", f"{c_ratio:.3f}", "reported", ""),
        (f"Peak RSS at that moment (median of {sp_ours['runs']})", f"{rss_ours:.1f} MiB",
         f"floor {rss_floor:.1f} MiB", f"{m_ratio:.3f}", "≤ 1.06", met(m_ratio <= 1.06)),
        ("Print 99 games to PDF (median of 21)", f"{fmt_us(pdf['us'])}, {pdf.get('pages', 0):.0f} pages",
         "", "", "reported", ""),
    ]
    print("| Figure | Measured | Against | Ratio | Goal | |")
    print("|---|---:|---:|---:|---|---|")
    for row in rows:
        print("| " + " | ".join(row) + " |")


if __name__ == "__main__":
    main()
