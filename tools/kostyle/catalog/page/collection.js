// The collection: what the page was made for, prepared for searching, filtering and sorting.

const data = JSON.parse(document.getElementById("data").textContent);
const collator = new Intl.Collator(undefined, {numeric: true});

// Upper and lower case are one, and so are letters with and without marks.
function folded(text) {
  return text.normalize("NFKD").replace(/\p{M}+/gu, "").toLowerCase();
}

const severities = ["error", "warning", "note"];

function severityOf(finding) {
  return data.rules[finding.rule].severity;
}

function countOf(findings, severity) {
  return findings.filter((finding) => severityOf(finding) === severity).length;
}

function effectNames(style) {
  return [...style.audioEffects, ...style.midiEffects].map(([id]) => id);
}

function styleEntry({file, directory, findings, more, style}) {
  const effects = effectNames(style);
  const texts = [style.name, style.id, style.vendor, file, ...style.genres, ...style.subGenres,
    ...style.singerGroups, ...style.singerIDs, ...style.colors, ...effects];
  return {...style, file, findings, more, folder: data.directories[directory],
    effects: [...new Set(effects)], size: effects.length, searched: folded(texts.join("\n"))};
}

function problemEntry({file, findings, more, style}) {
  const texts = [file, style?.name ?? "", ...findings.flatMap(({rule, found, path}) => [rule, found, path ?? ""])];
  // Without a finding of this kind it was read otherwise than checked, as a file that changed meanwhile.
  const worst = style ? severities.find((severity) => countOf(findings, severity)) : "error";
  return {file, findings, more, isRefused: !style, name: style?.name ?? "", worst, searched: folded(texts.join("\n"))};
}

const styles = data.files.filter(({style}) => style).map(styleEntry);
const problems = data.files.filter(({style, findings}) => !style || findings.length).map(problemEntry);
// Refused files first, then by the worst of the findings.
problems.sort((a, b) => b.isRefused - a.isRefused || severities.indexOf(a.worst) - severities.indexOf(b.worst));

const namelessLast = (a, b) => (a.name === "") - (b.name === "") || collator.compare(a.name, b.name);
const orders = {
  "Name": namelessLast,
  "Name, backwards": (a, b) => namelessLast(b, a),
  "Vendor": (a, b) =>
    (a.vendor === "") - (b.vendor === "") || collator.compare(a.vendor, b.vendor) || namelessLast(a, b),
  "Most effects": (a, b) => b.size - a.size || namelessLast(a, b),
  "Fewest effects": (a, b) => a.size - b.size || namelessLast(a, b),
  "File": (a, b) => collator.compare(a.file, b.file),
};

// Each order is made when it is first asked for.
const sorted = new Map();
function stylesInOrder(name) {
  if (!sorted.has(name)) sorted.set(name, [...styles].sort(orders[name]));
  return sorted.get(name);
}

function matches(entry, words) {
  return words.every((word) => entry.searched.includes(word));
}
