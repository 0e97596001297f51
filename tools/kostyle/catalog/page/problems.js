// Files that are refused, and what the check says about the others.

function problemElement({file, findings, more, isRefused, name}) {
  const head = element("header", {}, element("h3", {}, foreign("code", file)),
    element("span", {class: `badge ${isRefused ? "error" : "taken"}`}, isRefused ? "Refused" : "Taken"));
  const article = element("article", {}, head);
  if (name) article.append(foreign("p", name, "vendor"));
  if (isRefused && !countOf(findings, "error"))
    article.append(element("p", {},
      "The library did not take the file. It may have changed meanwhile: make the page again."));
  article.append(findingList(findings, more));
  return element("li", {class: "file"}, article);
}

// Notes are many and harmless: they are shown when they are asked for.
class ProblemFilter {
  #control;

  constructor(form, changed) {
    const choices = [["warning", "Errors and warnings"], ["note", "Errors, warnings and notes"],
      ["error", "Errors only"]];
    this.#control = select(form, "Show", choices);
    form.addEventListener("change", changed);
  }

  get least() {
    return this.#control.value;
  }

  problemsFor(words) {
    const isShown = ({worst}) => severities.indexOf(worst) <= severities.indexOf(this.least);
    return problems.filter((problem) => isShown(problem) && matches(problem, words));
  }
}
