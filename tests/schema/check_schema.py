"""Schema and library agree: what the schema accepts the library takes whole, what it rejects the library refuses or
takes in part.

usage: check_schema.py TOOL SCHEMA

Documents are made from a fixed seed: valid ones, each spoilt in up to three places. What JSON Schema cannot express is
named in EXCEPTIONS; each exception must come up, and nothing else may differ. Each of ALTERATIONS of the schema must show.
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


def bad_lengths(document):
    """Texts whose length is within bounds by one count, by UTF-16 units or by characters, and not by the other."""
    name, filters = document.get("name"), document.get("filter")
    identifiers = filters.get("singerIDs") if isinstance(filters, dict) else None
    return (isinstance(name, str) and (len(name) <= 100) != (utf16_size(name) <= 100)
            or isinstance(identifiers, list)
            and any(isinstance(each, str) and (len(each) == 16) != (utf16_size(each) == 16) for each in identifiers))


# What the schema cannot say, by what a document holds.
EXCEPTIONS = {
    "a length in UTF-16 units, where a character beyond U+FFFF counts twice": bad_lengths,
    "a text with half a surrogate pair": lambda document: any(
        isinstance(value, str) and any("\ud800" <= c <= "\udfff" for c in value) for value in scalars(document)),
    "a whole number that is written as a float": lambda document: any(
        isinstance(value, float) and value.is_integer() for value in scalars(document)),
}

# Changes of the schema that must be noticed: the path of a member, and what it becomes; nothing removes it.
ALTERATIONS = [
    (["properties", "id", "minLength"], 0), (["properties", "id", "pattern"], None),
    (["properties", "name", "minLength"], 0), (["properties", "name", "maxLength"], 99),
    (["properties", "name", "maxLength"], 101), (["properties", "name", "pattern"], None),
    (["properties", "vendor", "maxLength"], 100), (["properties", "vendor", "pattern"], None),
    (["properties", "filter", "additionalProperties"], None),
    (["properties", "filter", "properties", "languages", "items", "minimum"], -1),
    (["properties", "filter", "properties", "languages", "items", "maximum"], 5),
    (["properties", "filter", "properties", "languages", "uniqueItems"], None),
    (["properties", "filter", "properties", "singerIDs", "items", "minLength"], 15),
    (["properties", "filter", "properties", "singerIDs", "items", "maxLength"], 17),
    (["properties", "filter", "properties", "singerIDs", "items", "pattern"], None),
    (["properties", "filter", "properties", "singerIDs", "uniqueItems"], None),
    (["$defs", "texts", "items", "minLength"], 0), (["$defs", "texts", "items", "maxLength"], 100),
    (["$defs", "texts", "items", "pattern"], None), (["$defs", "texts", "uniqueItems"], None),
    (["$defs", "chain", "propertyNames", "minLength"], 0), (["$defs", "chain", "propertyNames", "pattern"], None),
    (["$defs", "effect", "required"], None), (["$defs", "effect", "additionalProperties"], None),
    (["$defs", "effect", "properties", "parameter", "propertyNames", "minLength"], 0),
    (["$defs", "effect", "properties", "parameter", "propertyNames", "pattern"], None),
    (["$defs", "effect", "properties", "parameter", "propertyNames", "not"], None),
    (["$defs", "value", "oneOf", 0, "pattern"], None), (["$defs", "value", "oneOf", 0, "minLength"], 1),
    (["$defs", "value", "oneOf", 1, "minimum"], -2**31 - 1), (["$defs", "value", "oneOf", 1, "minimum"], -2**31 + 1),
    (["$defs", "value", "oneOf", 1, "maximum"], 2**31), (["$defs", "value", "oneOf", 1, "maximum"], 2**31 - 2),
    (["$defs", "value", "oneOf", 2, "maximum"], 900), (["required"], ["id"]), (["anyOf"], None),
    (["additionalProperties"], None),
]


def altered(schema, path, value):
    copy = json.loads(json.dumps(schema))
    place = copy
    for step in path[:-1]:
        place = place[step]
    place.pop(path[-1], None)
    if value is not None:
        place[path[-1]] = value
    return copy


def boundary_documents():
    """Valid but for one place, or just so."""
    def style(**changes):
        document = {"id": "boundary", "name": "n", "filter": {}, "audioEffect": {"e": {"parameter": {"p": 1}}}}
        document.update(changes)
        return document

    for text in ["", "a" * 99, "a" * 100, "a" * 101, "a\0b"]:
        yield style(name=text)
        yield style(vendor=text)
        yield style(filter={"genres": [text]})
        yield style(audioEffect={"e": {"parameter": {"p": 1}}, text: {"parameter": {"p": 1}}})
        yield style(audioEffect={"e": {"parameter": {"p": text}}})
        yield style(audioEffect={"e": {"parameter": {"p": 1, text: 1}}})
    yield style(vendor="v" * 1000, filter={"colors": ["c" * 1000]})
    yield style(id="")
    yield style(id="a\0b")
    for length in [15, 16, 17]:
        yield style(filter={"singerIDs": ["s" * length]})
    yield style(filter={"singerIDs": ["s" * 15 + "\0"]})
    for key, value in [("languages", 0), ("genres", "g"), ("singerIDs", "s" * 16)]:
        yield style(filter={key: [value, value]})
    for language in [-1, 0, 4, 5]:
        yield style(filter={"languages": [language]})
    for value in [2**31 - 1, 2**31, -2**31, -2**31 - 1, 900.5, True, None]:
        yield style(audioEffect={"e": {"parameter": {"p": value}}})
    yield style(audioEffect={"e": {"parameter": {"Tarn": 1}}})
    yield style(audioEffect={"e": {"parameter": {"p": 1}}, "f": {}})
    yield style(audioEffect={"e": {"parameter": {"p": 1}, "script": "s"}})
    yield style(audioEffect={}, midiEffect={})
    yield style(unknown=1)
    yield style(filter={"unknown": 1})
    for key in ["id", "name", "filter", "audioEffect"]:
        document = style()
        del document[key]
        yield document


REPEATED = "a member that repeats: the first counts, and a schema sees the last alone"


def made_documents(maker):
    """Each document as text, and whether a member repeats in it."""
    for number, document in enumerate(boundary_documents()):
        if document.get("id") == "boundary":
            document["id"] = f"boundary-{number}"
        yield json.dumps(document), False
    for number in range(COUNT):
        document = maker.style(number)
        for _ in range(maker.random.randint(0, 3)):
            maker.spoil(document)
        if isinstance(document.get("id"), str) and document["id"] != f"style-{number}":
            document["id"] = document["id"] and f"{document['id']}-{number}"  # what repeats is refused
        repeats = maker.random.random() < 0.02
        yield json.dumps(document)[:-1] + (', "vendor": "first", "vendor": "last"}' if repeats else "}"), repeats


def read(tool, texts):
    """What the library makes of each document; None when it refuses it."""
    with tempfile.TemporaryDirectory() as folder:
        for number, text in enumerate(texts):
            (pathlib.Path(folder) / f"{number}.kostyle").write_text(text, encoding="ascii")
        listing = subprocess.run([tool, "list", "--json", "--system", folder], capture_output=True)
    styles = {pathlib.Path(style["path"]).stem: style for style in json.loads(listing.stdout)["styles"]}
    return [styles.get(str(number)) for number in range(len(texts))]


def differing(schema, results):
    """The results on which a schema and the library do not agree."""
    is_valid = jsonschema.Draft202012Validator(schema).is_valid
    return [result for result in results if is_valid(result.document) != result.whole]


Result = collections.namedtuple("Result", "document whole reasons")


def main(tool, schema_path):
    schema = json.loads(pathlib.Path(schema_path).read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    made = list(made_documents(Maker(random.Random(1))))
    results = []
    for (text, repeats), style in zip(made, read(tool, [text for text, _ in made])):
        document = json.loads(text)
        reasons = [name for name, holds in EXCEPTIONS.items() if holds(document)] + [REPEATED] * repeats
        results.append(Result(document, style is not None and is_whole(document, style), reasons))

    faults = [f"differs: {json.dumps(result)}" for result in differing(schema, results) if not result.reasons]
    counts = collections.Counter(reason for result in differing(schema, results) for reason in result.reasons)
    faults += [f"did not come up: {name}" for name in [*EXCEPTIONS, REPEATED] if not counts[name]]
    plain = [result for result in results if not result.reasons]
    for path, value in ALTERATIONS:
        if not differing(altered(schema, path, value), plain[:500]):
            faults.append(f"not noticed: {path} becomes {value}")
    whole = sum(result.whole for result in results)
    print(f"{len(results)} documents, {whole} taken whole, {len(plain)} without what a schema cannot say")
    for name, count in counts.items():
        print(f"{count} differ by {name}")
    if whole < COUNT // 5:
        faults.append("too few are taken whole")
    if faults:
        sys.exit("\n".join(faults[:10]))


if __name__ == "__main__":
    main(*sys.argv[1:])
