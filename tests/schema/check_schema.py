"""Schema and library agree: what the schema accepts the library takes whole, what it rejects the library refuses or
takes in part.

usage: check_schema.py TOOL SCHEMA [LAUNCHER...]

Documents are made from a fixed seed: valid ones, each spoilt in up to three places. What JSON Schema cannot express is
named in EXCEPTIONS; each exception must come up, and nothing else may differ.
"""
import collections
import json
import pathlib
import random
import struct
import subprocess
import sys
import tempfile

import jsonschema

COUNT = 4000
TEXTS = ["Pop", "Rock & Soul", "é", "夏", "𝄞", "x" * 40, " "]


def utf16_size(text):
    return len(text.encode("utf-16-le", "surrogatepass")) // 2


def float32(value):
    return struct.unpack("f", struct.pack("f", value))[0]


class Maker:
    def __init__(self, random_numbers):
        self.random = random_numbers

    def some(self, values, most):
        return self.random.sample(values, self.random.randint(0, most))

    def value(self):
        return self.random.choice([
            self.random.choice(TEXTS), "", self.random.randint(-2**31, 2**31 - 1), 0, 2**31 - 1, -2**31,
            self.random.uniform(-1000, 1000), 0.1, -2.5e-3, 1e-30])

    def effect(self):
        return {"parameter": {name: self.value() for name in self.some(["mix", "rate", "Tarn630", "é", "夏"], 5)}}

    def style(self, number):
        style = {"id": f"style-{number}", "name": self.random.choice(TEXTS)}
        if self.random.random() < 0.5:
            style["vendor"] = self.random.choice(TEXTS)
        if self.random.random() < 0.8:
            style["filter"] = {"languages": self.some(range(5), 5)}
            for key in self.some(["singerGroups", "genres", "subGenres", "colors"], 4):
                style["filter"][key] = self.some(TEXTS, 4)
            if self.random.random() < 0.5:
                style["filter"]["singerIDs"] = self.some(["0123456789abcdef", "é" * 16, "fedcba9876543210"], 3)
        for key in self.random.choice([["audioEffect"], ["midiEffect"], ["audioEffect", "midiEffect"]]):
            style[key] = {name: self.effect() for name in ["Reverb", "Delay", "夏"][:self.random.randint(1, 3)]}
        return style

    def places(self, value):
        """Each object and list in a document."""
        if isinstance(value, (dict, list)):
            yield value
            for each in value.values() if isinstance(value, dict) else value:
                yield from self.places(each)

    def spoil(self, style):
        place = self.random.choice(list(self.places(style)))
        wrong = self.random.choice([True, None, [], {}, "", "text", 5, -1, 2**31, -2**31 - 1, 2**40, 1e10, 1.0, 1e39,
                                    "a\0b", "a" * 101, "𝄞" * 60, "𝄞" * 8, "\ud800", {"parameter": 1}, {"x": 1}])
        if isinstance(place, list):
            place.insert(self.random.randint(0, len(place)), place[0] if place and self.random.random() < 0.3 else wrong)
        elif place and self.random.random() < 0.7:
            if self.random.random() < 0.3:
                del place[self.random.choice(list(place))]
            else:
                place[self.random.choice(list(place))] = wrong
        else:
            place[self.random.choice(["unknown", "", "Tarn", "script", "parameter"])] = wrong


def is_int(value):
    return isinstance(value, int) and not isinstance(value, bool)


def expected_parameters(effect):
    for name, value in effect["parameter"].items():
        if isinstance(value, str):
            yield name, "text", value
        elif is_int(value):
            yield name, "int", value
        elif isinstance(value, float):
            yield name, "float", float32(value)
        else:
            yield name, "none", None


def taken_parameters(effect):
    for parameter in effect["parameters"]:
        value = parameter["value"]
        yield parameter["name"], parameter["type"], float32(value) if parameter["type"] == "float" else value


def is_whole(document, style):
    """Whether a host sees in a style all that the document says, and in its own types."""
    try:
        known = {"id", "name", "vendor", "filter", "audioEffect", "midiEffect"}
        filters = document.get("filter", {})
        lists = ["languages", "singerGroups", "singerIDs", "genres", "subGenres", "colors"]
        return (set(document) <= known and set(filters) <= set(lists)
                and document["id"] == style["id"] and document["name"] == style["name"]
                and ("vendor" not in document or document["vendor"] == style["vendor"])
                and all(isinstance(filters.get(key, []), list)
                        and collections.Counter(map(repr, filters.get(key, []))) == collections.Counter(map(repr, style[key]))
                        for key in lists)
                and all(list(document.get(key, {})) == [effect["id"] for effect in style[chain]]
                        and all(set(each) == {"parameter"}
                                and sorted(expected_parameters(each)) == sorted(taken_parameters(effect))
                                for each, effect in zip(document.get(key, {}).values(), style[chain]))
                        for key, chain in (("audioEffect", "audioEffects"), ("midiEffect", "midiEffects"))))
    except (AttributeError, KeyError, OverflowError, TypeError, struct.error):
        return False


def scalars(value):
    if isinstance(value, dict):
        for key, each in value.items():
            yield key
            yield from scalars(each)
    elif isinstance(value, list):
        for each in value:
            yield from scalars(each)
    else:
        yield value


# What the schema cannot say, by what a document holds.
EXCEPTIONS = {
    "a length in UTF-16 units, where a character beyond U+FFFF counts twice":
        lambda value: isinstance(value, str) and utf16_size(value) != len(value),
    "a text with half a surrogate pair": lambda value: isinstance(value, str) and any("\ud800" <= c <= "\udfff" for c in value),
    "a whole number that is written as a float": lambda value: isinstance(value, float) and value.is_integer(),
}


REPEATED = "a member that repeats: the first counts, and a schema sees the last alone"


def made_documents(maker):
    """Each document as text, and whether a member repeats in it."""
    for number in range(COUNT):
        document = maker.style(number)
        for _ in range(maker.random.randint(0, 3)):
            maker.spoil(document)
        if isinstance(document.get("id"), str) and document["id"] != f"style-{number}":
            document["id"] = document["id"] and f"{document['id']}-{number}"  # what repeats is refused
        repeats = maker.random.random() < 0.02
        yield json.dumps(document)[:-1] + (', "vendor": "first", "vendor": "last"}' if repeats else "}"), repeats


def main(tool, schema, *launcher):
    validator = jsonschema.Draft202012Validator(json.loads(pathlib.Path(schema).read_text(encoding="utf-8")))
    validator.check_schema(validator.schema)
    documents = list(made_documents(Maker(random.Random(1))))
    with tempfile.TemporaryDirectory() as folder:
        for number, (text, _) in enumerate(documents):
            (pathlib.Path(folder) / f"{number}.kostyle").write_text(text, encoding="ascii")
        listing = subprocess.run([*launcher, tool, "list", "--json", "--system", folder], capture_output=True)
    styles = {pathlib.PurePath(style["path"].replace("\\", "/")).stem: style for style in json.loads(listing.stdout)["styles"]}
    counts = collections.Counter()
    differing = []
    for number, (text, repeats) in enumerate(documents):
        document = json.loads(text)
        accepted = validator.is_valid(document)
        whole = str(number) in styles and is_whole(document, styles[str(number)])
        counts["accepted" if accepted else "rejected"] += 1
        if accepted == whole:
            continue
        reasons = [name for name, holds in EXCEPTIONS.items() if any(map(holds, scalars(document)))]
        reasons += [REPEATED] * repeats
        counts.update(reasons)
        if not reasons:
            differing.append((accepted, whole, document))
    for accepted, whole, document in differing[:5]:
        print(f"accepted: {accepted}, taken whole: {whole}: {json.dumps(document)}")
    for name, count in counts.items():
        print(f"{count}: {name}")
    missing = [name for name in [*EXCEPTIONS, REPEATED] if not counts[name]]
    if differing or missing or min(counts["accepted"], counts["rejected"]) < COUNT // 5:
        sys.exit(f"{len(differing)} documents differ; did not come up: {missing}")


if __name__ == "__main__":
    main(*sys.argv[1:])
