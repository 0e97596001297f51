"""Figures with their units."""


def figure(value: float, unit: str) -> str:
    if unit == "B":
        return f"{value / 1000:.2f} KB" if value >= 1000 else f"{value:.0f} B"
    if unit == "ns":
        return f"{value / 1000:.2f} µs" if value >= 1000 else f"{value:.2f} ns"
    return f"{value:.2f}"
