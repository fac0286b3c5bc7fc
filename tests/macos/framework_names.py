"""The names that the declarations under tests/macos/frameworks give away, by what they name."""
import re

COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.S)
METHOD = re.compile(r"^[-+]\s*\((.*?);", re.S | re.M)
SELECTOR_PART = re.compile(r"(\w+)\s*:")
# "- (type)name": a method without arguments.
UNARY = re.compile(r"^[-+]\s*\((?:[^()]|\([^()]*\))*\)\s*(\w+)\s*(?:NS_\w+\s*)?;", re.M)
PROPERTY = re.compile(r"@property[^;]*?(\w+)\s*;")
ENUM_BODY = re.compile(r"(?:NS_ENUM|NS_OPTIONS|CF_ENUM|\benum\b)[^;{]*\{(.*?)\}", re.S)
ENUMERATOR = re.compile(r"(?:^|,)\s*(\w+)")
GLOBAL = re.compile(r"^\s*extern\b[^;(]*?(\w+)\s*;", re.M)
FUNCTION = re.compile(r"^\s*(?!typedef)[\w\s*:]+?\b(\w+)\s*\([^;{]*\)\s*;", re.M)
TYPE = re.compile(r"@(?:interface|protocol)\s+(\w+)|^typedef\b[^;{(]*?(\w+)\s*;|\bNS_(?:ENUM|OPTIONS)\(\w+,\s*(\w+)\)", re.M)


def names_of(text):
    """{"selector" | "constant" | "function" | "type": set of names}"""
    text = COMMENT.sub("", text)
    selectors = set(PROPERTY.findall(text)) | set(UNARY.findall(text))
    for declaration in METHOD.findall(text):
        selectors.update(SELECTOR_PART.findall(declaration))
    constants = set(GLOBAL.findall(text))
    for body in ENUM_BODY.findall(text):
        constants.update(ENUMERATOR.findall(body))
    outside_classes = re.sub(r"@(?:interface|protocol)\b.*?@end", "", text, flags=re.S)
    functions = {name for name in FUNCTION.findall(outside_classes) if not name.startswith("_")}
    types = {name for found in TYPE.findall(text) for name in found if name}
    return {"selector": selectors, "constant": constants, "function": functions, "type": types}


def framework_names(folder):
    merged = {}
    for header in sorted(folder.rglob("*.h")):
        if header.parent.name == "objc":
            continue  # the language's own
        for kind, names in names_of(header.read_text(encoding="utf-8")).items():
            merged.setdefault(kind, set()).update(names)
    return merged
