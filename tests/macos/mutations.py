"""Small mistakes in Objective-C++ sources, each of a kind that a type check has to find."""
import re

# What is no code: comments, texts, lines of the preprocessor.
NO_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|^[ \t]*#[^\n]*', re.S | re.M)


SAMPLED_KINDS = 2


class Mutation:
    def __init__(self, kind, what, text, line):
        self.kind, self.what, self.text, self.line = kind, what, text, line


def masked(text):
    """The text with what is no code made blank, position by position."""
    return NO_CODE.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), text)


def put(kind, text, start, end, replacement):
    line = text.count("\n", 0, start) + 1
    what = f"{' '.join(text[start:end].split())} -> {replacement}"
    return Mutation(kind, what, text[:start] + replacement + text[end:], line)


# A part of a message or a property; elsewhere the same word is a name of our own.
IN_MESSAGE = r"\b{0}(?=:(?!:))|(?<=[\w\])]\.){0}\b(?!\()|(?<=[\w\])] ){0}(?=\])"


def misspelt_names(text, names, tried):
    """Each name of a framework that the source uses and that was not tried yet, misspelt where it stands first."""
    code = masked(text)
    for kind, known in names.items():
        for name in sorted(known - tried):
            if name not in code:
                continue
            match = re.search((IN_MESSAGE if kind == "selector" else r"\b{0}\b").format(name), code)
            if match:
                tried.add(name)
                yield put(kind, text, match.start(), match.end(), name + "X")


def by_pattern(kind, pattern, replacement):
    """A mutation at every place that fits; the replacement, a template, takes the place of the first group."""

    def mutate(text, _names, _tried):
        for match in re.finditer(pattern, masked(text), re.M):
            yield put(kind, text, match.start(1), match.end(1), match.expand(replacement))

    return mutate


def changed_signatures(text, names, _tried):
    """Parameters and results of methods that a framework calls."""
    code = masked(text)
    for method in re.finditer(r"^- \((\w+)\)((?:\s*\w+:\(.*?\)\w+)+)\s*\{", code, re.M | re.S):
        if not set(re.findall(r"(\w+):", method.group(2))) <= names["selector"]:
            continue
        yield put("signature", text, method.start(1), method.end(1), "NSString*")
        for parameter in re.finditer(r":\(([^)]*)\)", method.group(2)):
            start, end = (method.start(2) + place for place in parameter.span(1))
            yield put("signature", text, start, end, "NSLocale*")


MUTATORS = [
    misspelt_names,
    changed_signatures,
    by_pattern("argument", r":\s*(nil)\b", "42"),
    by_pattern("argument", r":\s*(systemText\(\w+(?:\.\w+)*\))", "@42"),
    by_pattern("argument", r":\s*(YES|NO)\b", '@"yes"'),
    by_pattern("bridge", r"(__bridge )", ""),
    by_pattern("release", r"(\[\w+ alloc\])", r"[\1 retain]"),
    by_pattern("release", r"^    (\w+)\s*\*(?:const )?\w+ = \[", r"[@[] release]; \1"),
]


def mutations(text, names, tried):
    for mutator in MUTATORS:
        yield from mutator(text, names, tried)


def sample(made, counts):
    """A few of the mistakes of one source, of the kinds that were tried least; always the same ones."""
    by_kind = {}
    for mutation in made:
        by_kind.setdefault(mutation.kind, []).append(mutation)
    chosen = sorted(by_kind, key=lambda kind: (counts[kind], len(by_kind[kind]), kind))[:SAMPLED_KINDS]
    return [by_kind[kind][len(by_kind[kind]) // 2] for kind in chosen]
