"""Tables for the terminal."""

from results import Results


def figure(value: float, unit: str) -> str:
    if unit == "B":
        return f"{value / 1000:.2f} KB" if value >= 1000 else f"{value:.0f} B"
    if unit == "ns":
        return f"{value / 1000:.2f} µs" if value >= 1000 else f"{value:.2f} ns"
    return f"{value:.2f}"


def print_columns(rows: list) -> None:
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    for row in rows:
        cells = [row[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
        print("  ".join(cells).rstrip())


def print_medians(results: Results) -> None:
    for platform, rows in results.rows.items():
        print(f"\n== {platform}: medians, per file, call or element")
        lines = []
        for name in sorted(rows, key=row_order):
            rounds = rows[name]["rounds"]
            middle, unit = results.median(platform, name), rows[name]["unit"]
            spread = (max(rounds) - min(rounds)) / middle
            lines.append([name, figure(middle, unit), f"±{50 * spread:.0f}%"])
        print_columns(lines)


def row_order(name: str) -> list:
    return [part.zfill(8) if part.isdigit() else part for part in name.split("/")]


def print_targets(table: list) -> None:
    if not table:
        return
    print("\n== targets: medians of the ratios of the rounds")
    lines = [["work", "platform", "measured", "target", ""]]
    for row in table:
        bound = "at least" if row["at least"] else "at most"
        lines.append([row["work"], row["platform"], figure(row["value"], row["unit"]),
                      f"{bound} {figure(row['limit'], row['unit'])}", "met" if row["met"] else "MISSED"])
    print_columns(lines)
