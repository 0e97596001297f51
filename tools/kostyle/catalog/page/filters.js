// What the styles can be narrowed by.

const facets = [
  {label: "Genre", all: "All genres", of: ({genres}) => genres},
  {label: "Sub-genre", all: "All sub-genres", of: ({subGenres}) => subGenres},
  {label: "Singers", all: "All singers", of: ({singerGroups}) => singerGroups},
  {label: "Language", all: "All languages", of: ({languages}) => languages.map(String)},
  {label: "Color", all: "All colors", of: ({colors}) => colors},
  {label: "Effect", all: "All effects", of: ({effects}) => effects},
  {label: "Vendor", all: "All vendors", of: ({vendor}) => vendor ? [vendor] : []},
  {label: "Folder", all: "All folders", of: ({folder}) => [folder]},
];

function select(form, label, options) {
  const id = `filter-${label.toLowerCase()}`;
  const made = element("select", {id}, ...options.map(([value, text]) => element("option", {value}, text)));
  form.append(element("div", {class: "field"}, element("label", {for: id}, label), made));
  return made;
}

function facetOptions({all, of}) {
  const counts = new Map();
  for (const style of styles) for (const value of of(style)) counts.set(value, (counts.get(value) ?? 0) + 1);
  const values = [...counts.keys()].sort(collator.compare);
  return [["", all], ...values.map((value) => [value, `${value} (${counts.get(value)})`])];
}

class Filters {
  #chosen = [];
  #order;

  constructor(form, orderForm, changed) {
    for (const facet of facets) {
      const options = facetOptions(facet);
      if (options.length < 3) continue;  // one value tells nothing apart
      this.#chosen.push([select(form, facet.label, options), facet.of]);
    }
    this.#order = select(orderForm, "Order", Object.keys(orders).map((name) => [name, name]));
    form.addEventListener("change", changed);
    orderForm.addEventListener("change", changed);
  }

  get active() {
    return this.#chosen.filter(([{value}]) => value !== "");
  }

  clear() {
    for (const [control] of this.#chosen) control.value = "";
  }

  stylesFor(words) {
    const active = this.active.map(([{value}, of]) => (style) => of(style).includes(value));
    return stylesInOrder(this.#order.value)
      .filter((style) => matches(style, words) && active.every((accepts) => accepts(style)));
  }
}
