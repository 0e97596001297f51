"""Every public name of the interfaces has a description: files, classes, functions, members, values, macros.

usage: check_described.py XML
"""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

HEADERS = "include/kostyle/"


def is_described(element):
    parts = [element.find("briefdescription"), element.find("detaileddescription")]
    return any("".join(part.itertext()).strip() for part in parts if part is not None)


def is_ours(element):
    place = element.find("location")
    return place is not None and HEADERS in place.get("file", "")


def names(compound):
    """What a class, a namespace or a file declares for hosts, each with its name."""
    own = compound.findtext("compoundname")
    if compound.get("prot", "public") == "public":
        yield own, compound
        for member in compound.iter("memberdef"):
            if member.get("prot") == "public":
                name = f"{own}: {member.findtext('name')}{member.findtext('argsstring') or ''}"
                yield name, member
                yield from ((f"{name}, {value.findtext('name')}", value) for value in member.iter("enumvalue"))


def main(folder):
    found, missing = 0, []
    for file in sorted(pathlib.Path(folder).glob("*.xml")):
        for compound in ElementTree.parse(file).getroot().iter("compounddef"):
            if compound.get("kind") in ("dir", "page") or not is_ours(compound):
                continue
            for name, element in names(compound):
                found += 1
                if not is_described(element):
                    missing.append(name)
    if missing or not found:
        sys.exit("\n".join(["names without a description:", *sorted(set(missing))]))
    print(f"{found} names, each with a description")


if __name__ == "__main__":
    main(sys.argv[1])
