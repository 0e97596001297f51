// The card of a style.

// What may stand as a color: nothing that refers to something else.
const plainColor = /^(#[0-9a-f]{3,8}|[a-z]+|(rgb|hsl)a?\([\d\s.,%/+-]+\))$/i;
const noColors = /^(currentcolor|transparent|inherit|initial|unset|revert.*)$/i;

function isColor(text) {
  return plainColor.test(text) && !noColors.test(text) && CSS.supports("color", text);
}

function swatch(color) {
  const sample = element("span", {class: "swatch", "aria-hidden": "true"});
  if (isColor(color)) {
    sample.style.backgroundColor = color;
  } else {
    sample.classList.add("unknown");
  }
  return element("li", {}, sample, foreign("span", color));
}

// The edge of the card has the colors of the style.
function edge(colors) {
  const known = colors.filter(isColor);
  const made = element("div", {class: "edge", "aria-hidden": "true"});
  for (const color of known) {
    const part = element("span", {});
    part.style.backgroundColor = color;
    made.append(part);
  }
  return made;
}

function row(title, content) {
  return [element("dt", {}, title), element("dd", {}, content)];
}

function tags(texts, className) {
  return texts.map((text) => foreign("li", text, className));
}

// Nothing when the style has no attributes.
function attributeList(style) {
  const rows = [];
  const addTags = (title, ...lists) => {
    const items = lists.flatMap(([texts, className]) => tags(texts, className));
    if (items.length) rows.push(...row(title, element("ul", {class: "tags"}, ...items)));
  };
  if (style.colors.length) rows.push(...row("Colors", element("ul", {class: "swatches"}, ...style.colors.map(swatch))));
  addTags("Genres", [style.genres, "tag"], [style.subGenres, "tag sub"]);
  addTags("Singers", [style.singerGroups, "tag"]);
  addTags("Languages", [style.languages.map(String), "tag"]);
  return rows.length ? [element("dl", {class: "attributes"}, ...rows)] : [];
}

// An effect is its identifier, then name, type and value of each parameter.
function parameterTable([id, ...texts]) {
  const body = element("tbody", {});
  for (let i = 0; i < texts.length; i += 3) {
    const [name, type, value] = texts.slice(i, i + 3);
    body.append(element("tr", {}, foreign("th", name), foreign("td", value, type),
      element("td", {class: "muted"}, type)));
    body.lastChild.firstChild.setAttribute("scope", "row");
  }
  const titles = ["Parameter", "Value", "Type"].map((title) => element("th", {scope: "col"}, hidden(title)));
  const head = element("tr", {}, ...titles);
  const table = element("table", {}, foreign("caption", id), element("thead", {}, head), body);
  const panel = element("div", {class: "parameters"}, table);
  if (!texts.length) panel.append(element("p", {class: "muted"}, "No parameters"));
  return panel;
}

function effectButton(effect, place) {
  const count = (effect.length - 1) / 3;
  const button = element("button", {type: "button", class: "effect"}, foreign("span", effect[0]),
    hidden(` (${counted(count, "parameter")})`));
  const toggle = disclosure(button, () => {
    const panel = parameterTable(effect);
    place.append(panel);
    return panel;
  });
  return [button, toggle];
}

// Of the effects of a chain one shows its parameters.
function chainElement(title, effects, className) {
  const place = element("div", {class: "panels"});
  const list = element("ol", {class: "effects"});
  const toggles = [];
  for (const effect of effects) {
    const [button, toggle] = effectButton(effect, place);
    button.addEventListener("click", () => {
      const open = button.getAttribute("aria-expanded") === "false";
      for (const other of toggles) other(false);
      toggle(open);
    });
    toggles.push(toggle);
    list.append(element("li", {}, button));
  }
  return element("div", {class: `chain ${className}`, role: "group", "aria-label": `${title} chain`},
    element("p", {class: "chain-title", "aria-hidden": "true"}, title), list, place);
}

function detailsPanel(style) {
  const facts = [["Identifier", style.id], ["Vendor", style.vendor], ["File", style.file],
    ["Singer identifiers", style.singerIDs.join(", ")]].filter(([, text]) => text);
  const panel = element("div", {class: "details"},
    element("dl", {}, ...facts.flatMap(([title, text]) => row(title, foreign("code", text)))));
  if (style.findings.length)
    panel.append(element("h4", {}, "Found by check"), findingList(style.findings, style.more));
  return panel;
}

function warningMark(style) {
  const count = countOf(style.findings, "warning");
  if (!count) return [];
  const text = style.more ? `${count}+ warnings` : counted(count, "warning");
  return [element("span", {class: "badge warning"}, text)];
}

function styleCard(style, number) {
  const heading = style.name ? foreign("h3", style.name) : element("h3", {class: "muted"}, "No name");
  heading.id = `style-${number}`;
  const head = element("header", {}, heading, ...warningMark(style));
  const article = element("article", {"aria-labelledby": heading.id}, edge(style.colors), head);
  if (style.vendor) article.append(foreign("p", style.vendor, "vendor"));
  article.append(...attributeList(style));
  if (style.audioEffects.length) article.append(chainElement("Audio", style.audioEffects, "audio"));
  if (style.midiEffects.length) article.append(chainElement("MIDI", style.midiEffects, "midi"));
  const button = element("button", {type: "button", class: "quiet details-button"}, "Details",
    hidden(` of ${style.name || "the style without a name"}`));
  const foot = element("div", {class: "foot"}, button);
  const toggle = disclosure(button, () => {
    const panel = detailsPanel(style);
    foot.append(panel);
    return panel;
  });
  button.addEventListener("click", () => toggle(button.getAttribute("aria-expanded") === "false"));
  article.append(foot);
  return element("li", {class: "card"}, article);
}
