// The page: two views of the collection, one search for both, and the keys.

const byId = (id) => document.getElementById(id);
const query = byId("query");
const views = {
  styles: {section: byId("styles-view"), form: byId("filters"), link: byId("styles-link")},
  problems: {section: byId("problems-view"), form: byId("problem-filters"), link: byId("problems-link")},
};
const filters = new Filters(views.styles.form, byId("order"), update);
const problemFilter = new ProblemFilter(views.problems.form, update);
const cards = new GrowingList(views.styles.section, styleCard);
const files = new GrowingList(views.problems.section, problemElement);
let view = "";

function emptyText(all) {
  if (view === "problems" && !problems.length) return "Nothing was found: every file is taken whole.";
  if (!all) return "There are no styles here.";
  return "Nothing fits. Fewer words or filters find more.";
}

function update() {
  const words = folded(query.value).split(/\s+/).filter(Boolean);
  const isStyles = view === "styles";
  const found = isStyles ? filters.stylesFor(words) : problemFilter.problemsFor(words);
  const all = isStyles ? styles.length : problemFilter.problemsFor([]).length;
  (isStyles ? cards : files).show(found);
  views.problems.section.dataset.least = problemFilter.least;
  const noun = isStyles ? ["style", "styles"] : ["file with problems", "files with problems"];
  byId("status").textContent = found.length === all ? counted(all, ...noun)
    : `${found.length.toLocaleString("en")} of ${counted(all, ...noun)}`;
  const active = isStyles ? filters.active.length : 0;
  byId("filters-button").querySelector(".count").textContent = active || "";
  byId("clear").hidden = !words.length && !active;
  byId("empty").hidden = found.length > 0;
  byId("empty").textContent = found.length ? "" : emptyText(all);
}

function clearAll() {
  query.value = "";
  filters.clear();
  update();
}

function showView(name) {
  if (name === view) return;
  view = name;
  for (const [other, {section, form, link}] of Object.entries(views)) {
    section.hidden = form.hidden = other !== name;
    if (other === name) link.setAttribute("aria-current", "page");
    else link.removeAttribute("aria-current");
  }
  byId("order").hidden = byId("filters-button").hidden = name !== "styles";
  update();
  scrollTo(0, 0);
}

// Other fragments, such as that of the skip link, leave the view as it is.
function followFragment() {
  const name = location.hash.slice(1);
  if (Object.hasOwn(views, name)) showView(name);
  else if (!name || !view) showView("styles");
}

// Shuts what is open in a card, the inner before the outer; false when nothing is.
function shutIn(card) {
  const open = card?.querySelector('[aria-expanded="true"]');
  if (!open) return false;
  open.click();
  open.focus();
  return true;
}

function onKey(event) {
  const typing = event.target.closest("input, select, textarea");
  if (event.key === "/" && !typing && !event.ctrlKey && !event.metaKey && !event.altKey) {
    event.preventDefault();
    query.focus();
    query.select();
  } else if (event.key === "Escape") {
    if (event.target.closest("select") || shutIn(event.target.closest(".card"))) return;
    event.preventDefault();
    clearAll();
  }
}

function start() {
  const refused = problems.filter(({isRefused}) => isRefused).length;
  document.title = byId("title").textContent = data.title;
  const folders = data.directories.length;
  byId("origin").textContent = `${counted(styles.length, "style")} in ${counted(folders, "folder")}` +
    (refused ? `, ${counted(refused, "file")} refused` : "");
  views.styles.link.querySelector(".count").textContent = styles.length.toLocaleString("en");
  views.problems.link.querySelector(".count").textContent =
    problems.filter(({worst}) => worst !== "note").length.toLocaleString("en");
  query.addEventListener("input", update);
  addEventListener("submit", (event) => event.preventDefault());
  byId("clear").addEventListener("click", () => {
    clearAll();
    query.focus();
  });
  byId("filters-button").addEventListener("click", ({currentTarget}) => {
    const open = currentTarget.getAttribute("aria-expanded") === "false";
    document.documentElement.classList.toggle("with-filters", open);
    currentTarget.setAttribute("aria-expanded", String(open));
  });
  addEventListener("hashchange", followFragment);
  addEventListener("keydown", onKey);
  followFragment();
}

start();
