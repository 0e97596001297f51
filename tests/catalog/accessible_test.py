"""The page for everybody: names, landmarks, order, contrast in both schemes, narrow windows, no motion."""
from selenium.webdriver.common.by import By

import collections_of_styles as collections
from browser import set_media, set_size
from page_case import PageCase

# The texts of the page with too little contrast between text and ground, as WCAG 2.2 AA counts it.
LOW_CONTRAST = """
const numbers = (color) => color.match(/[\\d.]+/g).map(Number);
const luminance = ([r, g, b]) => [r, g, b].map((c) => c / 255)
  .map((c) => c <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4)
  .reduce((sum, c, place) => sum + c * [0.2126, 0.7152, 0.0722][place], 0);
const contrast = (a, b) => {
  const [low, high] = [luminance(a), luminance(b)].sort((x, y) => x - y);
  return (high + 0.05) / (low + 0.05);
};
function ground(element) {
  for (let at = element; at; at = at.parentElement) {
    const [r, g, b, alpha = 1] = numbers(getComputedStyle(at).backgroundColor);
    if (alpha === 1) return [r, g, b];
    if (alpha !== 0) throw new Error(`a ground that is half seen through: ${at.className}`);
  }
  return [255, 255, 255];
}
const low = [];
let checked = 0;
for (const element of document.body.querySelectorAll("*")) {
  if (["SCRIPT", "NOSCRIPT", "OPTION"].includes(element.tagName) || !element.checkVisibility()) continue;
  const hasText = [...element.childNodes].some((node) => node.nodeType === 3 && node.data.trim());
  const pseudo = element.placeholder ? "::placeholder" : null;
  if (!hasText && !pseudo) continue;
  const style = getComputedStyle(element, pseudo);
  const size = parseFloat(style.fontSize);
  const isLarge = size >= 24 || (size >= 18.66 && Number(style.fontWeight) >= 700);
  const ratio = contrast(numbers(style.color), ground(element));
  ++checked;
  if (ratio < (isLarge ? 3 : 4.5)) low.push(`${element.tagName}.${element.className} ${ratio.toFixed(2)}`);
}
return [checked, low];
"""
# What has to stand out against what is beside it, with a ratio of 3: edges of controls, and the focus.
PARTS = """
const probe = document.createElement("i");
document.body.append(probe);
const color = (name) => {
  probe.style.color = `var(--${name})`;
  return getComputedStyle(probe).color;
};
const names = ["control", "accent", "ground", "surface", "sunken"];
const found = Object.fromEntries(names.map((name) => [name, color(name)]));
probe.remove();
return found;
"""


def ratio(one, other):
    def luminance(color):
        parts = [int(part) / 255 for part in color[4:-1].split(", ")]
        linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]
    low, high = sorted([luminance(one), luminance(other)])
    return (high + 0.05) / (low + 0.05)


class Accessible(PageCase):
    make_page = staticmethod(collections.small)

    def open_all(self):
        self.driver.execute_script("""
            for (const chain of document.querySelectorAll('.chain')) chain.querySelector('.effect').click();
            for (const button of document.querySelectorAll('.details-button')) button.click();""")

    def in_both_views(self):
        for view in ("styles", "problems"):
            self.view(view)
            if view == "problems":
                self.choose("show", "Errors, warnings and notes")
            else:
                self.open_all()
            yield view

    def test_every_control_has_a_name(self):
        for _ in self.in_both_views():
            controls = self.all("a, button, input, select, [tabindex='0'], [role=group], form, nav, section")
            self.assertGreater(len(controls), 8)
            nameless = [control.get_attribute("outerHTML") for control in controls
                        if not control.accessible_name.strip()]
            self.assertEqual(nameless, [])

    def test_a_name_says_more_than_what_is_seen_where_that_repeats(self):
        names = [button.accessible_name for button in self.all(".details-button")]
        self.assertEqual(len(set(names)), len(names))
        self.assertEqual(self.button(self.card("Plain"), "Transpose").accessible_name, "Transpose (0 parameters)")

    def test_landmarks_and_headings(self):
        self.assertEqual(self.driver.find_element(By.TAG_NAME, "html").get_attribute("lang"), "en")
        roles = [self.one(selector).aria_role for selector in ("body > header", "nav", "main", "#search", "#status")]
        self.assertEqual(roles, ["banner", "navigation", "main", "search", "status"])
        self.assertEqual([card.aria_role for card in self.all(".card")], ["listitem"] * 4)
        for _ in self.in_both_views():
            levels = [int(heading.tag_name[1]) for heading in self.all("h1, h2, h3, h4")]
            self.assertEqual((levels[0], levels.count(1)), (1, 1))
            self.assertTrue(all(below - above <= 1 for above, below in zip(levels, levels[1:])), levels)

    def test_identifiers_are_unique_and_references_lead_somewhere(self):
        for _ in self.in_both_views():
            twice, lost = self.driver.execute_script("""
                const ids = [...document.querySelectorAll("[id]")].map(({id}) => id);
                const named = [...document.querySelectorAll("*")].flatMap((element) =>
                  ["aria-labelledby", "aria-describedby", "aria-controls", "for"]
                    .flatMap((name) => (element.getAttribute(name) ?? "").split(" ").filter(Boolean)));
                const twice = ids.filter((id, place) => ids.indexOf(id) !== place);
                return [twice, named.filter((id) => !ids.includes(id))];""")
            self.assertEqual((twice, lost), ([], []))

    def test_texts_stand_out_in_both_schemes(self):
        for _ in self.in_both_views():
            for scheme in ("light", "dark"):
                set_media(self.driver, prefers_color_scheme=scheme, prefers_reduced_motion="reduce")
                checked, low = self.driver.execute_script(LOW_CONTRAST)
                self.assertGreater(checked, 30)
                self.assertEqual(low, [], scheme)

    def test_controls_and_focus_stand_out_in_both_schemes(self):
        grounds = []
        for scheme in ("light", "dark"):
            set_media(self.driver, prefers_color_scheme=scheme)
            parts = self.driver.execute_script(PARTS)
            grounds.append(parts["ground"])
            for part, beside in (("control", "ground"), ("control", "surface"), ("accent", "ground"),
                                 ("accent", "surface"), ("accent", "sunken")):
                self.assertGreaterEqual(ratio(parts[part], parts[beside]), 3, (scheme, part, beside))
        self.assertNotEqual(*grounds)

    def test_the_focus_is_seen(self):
        for selector in ("#query", "#filter-genre", ".effect", ".details-button", "nav a"):
            with self.subTest(selector):
                found = self.all(selector)[0]
                self.driver.execute_script("arguments[0].focus({focusVisible: true})", found)
                self.assertEqual(found.value_of_css_property("outline-style"), "solid")
                self.assertEqual(found.value_of_css_property("outline-width"), "3px")

    def test_targets_are_large_enough(self):
        for width in (1280, 360):
            set_size(self.driver, width, 800)
            small = [found.text for found in self.all("button, select, input, nav a")
                     if min(found.size["height"], found.size["width"]) < 24]
            self.assertEqual(small, [])

    def test_nothing_is_wider_than_a_narrow_window(self):
        set_size(self.driver, 320, 700)
        for _ in self.in_both_views():
            wide = self.driver.execute_script("""return [...document.querySelectorAll("body *")].filter((element) =>
                element.checkVisibility() && element.getBoundingClientRect().right > 320)
                .map(({tagName, className}) => `${tagName}.${className}`)""")
            self.assertEqual(wide, [])
            self.assertLessEqual(self.driver.execute_script("return document.scrollingElement.scrollWidth"), 320)

    def test_filters_of_a_narrow_window_are_behind_a_button(self):
        set_size(self.driver, 360, 700)
        self.assertEqual(self.all("#filters"), [])
        button = self.one("#filters-button")
        button.click()
        self.choose("genre", "Ambient (2)")
        self.assertEqual(self.status(), "2 of 4 styles")
        self.assertEqual(button.accessible_name, "Filters 1")
        button.click()
        self.assertEqual(self.all("#filters"), [])
        self.assertEqual(button.get_attribute("aria-expanded"), "false")

    def test_motion_is_for_those_who_want_it(self):
        self.button(self.card("Plain"), "Transpose").click()
        panel = self.one(".parameters")
        self.assertEqual(panel.value_of_css_property("animation-name"), "none")
        set_media(self.driver, prefers_reduced_motion="no-preference")
        self.assertEqual(panel.value_of_css_property("animation-name"), "unfold")
