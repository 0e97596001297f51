// What the check found in a file.

const severityNames = {error: "Error", warning: "Warning", note: "Note"};

function severityBadge(severity) {
  return element("span", {class: `badge ${severity}`}, severityNames[severity]);
}

function placeText({line, column}) {
  return line === undefined ? "" : `line ${line}, column ${column}`;
}

// An empty mark is a place behind the line.
function excerptElement({line, excerpt: [before, marked, after]}) {
  return element("pre", {class: "excerpt", dir: "ltr"}, element("span", {class: "muted"}, `${line}  `),
    before, element("mark", {}, marked || "\u00a0"), after);
}

function relatedElement({file, text, ...place}) {
  const where = placeText(place);
  return element("p", {class: "muted"}, foreign("code", file), where ? `, ${where}: ` : ": ", text);
}

function findingElement(finding) {
  const {severity, sentence} = data.rules[finding.rule];
  const made = element("li", {class: `finding ${severity}`},
    element("p", {class: "headline"}, severityBadge(severity), " ", foreign("strong", finding.found)),
    element("p", {}, foreign("span", `${finding.requirement ?? sentence}; ${finding.outcome}`)));
  if (finding.excerpt !== undefined) made.append(excerptElement(finding));
  if (finding.related) made.append(relatedElement(finding.related));
  const place = placeText(finding);
  const parts = [place && element("span", {}, place), finding.path && foreign("code", finding.path),
    element("code", {}, finding.rule)];
  made.append(element("p", {class: "muted where"}, ...parts.filter(Boolean)));
  return made;
}

function findingList(findings, more) {
  const list = element("ul", {class: "findings"}, ...findings.map(findingElement));
  if (more)
    list.append(element("li", {class: "muted"}, `And ${more.toLocaleString("en")} more: "kostyle check" tells all.`));
  return list;
}
