// What the check found in a file.

const severityNames = {error: "Error", warning: "Warning", note: "Note"};

function severityBadge(severity) {
  return element("span", {class: `badge ${severity}`}, severityNames[severity]);
}

function placeText({line, column}) {
  return line === undefined ? "" : `line ${line}, column ${column}`;
}

function excerptElement({line, excerpt, caret, width}) {
  const number = `${line}`.padStart(5);
  const mark = " ".repeat(caret) + "^" + "~".repeat(Math.max(0, width - 1));
  const figure = element("pre", {class: "excerpt", tabindex: "0", role: "region", "aria-label": `Line ${line}`},
    `${number} | ${excerpt}\n`);
  figure.append(element("span", {class: "mark", "aria-hidden": "true"}, `${" ".repeat(5)} | ${mark}`));
  return figure;
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
  if (more) list.append(element("li", {class: "muted"}, `And ${more.toLocaleString("en")} more: "kostyle check" tells all.`));
  return list;
}
