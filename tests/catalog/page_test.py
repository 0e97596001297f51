"""The page as it is used: looked at, searched, filtered, with a mouse and with keys."""
import json
import re

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

import collections_of_styles as collections
from page_case import PageCase


class Small(PageCase):
    make_page = staticmethod(collections.small)


class Looking(Small):
    def test_says_what_the_collection_is(self):
        self.assertEqual(self.driver.title, "Tried styles")
        self.assertEqual(self.one("h1").text, "Tried styles")
        self.assertEqual(self.one("#origin").text, "4 styles in 3 folders, 2 files refused")
        self.assertEqual(self.status(), "4 styles")

    def test_a_card_shows_the_attributes(self):
        card = self.card("Harbour at night")
        self.assertEqual(card.text.splitlines(), [
            "Harbour at night", "Example sounds", "Colors", "violet", "warm white", "Genres", "Ambient", "Synthwave",
            "Retro", "Singers", "Duo", "Languages", "0", "3", "Audio", "Chorus", "(3 parameters)", "Reverb",
            "(2 parameters)", "MIDI", "Arp", "(1 parameter)", "Details", "of Harbour at night"])

    def test_swatches_have_the_colors_that_a_browser_knows(self):
        swatches = self.card("Harbour at night").find_elements(By.CSS_SELECTOR, ".swatch")
        self.assertEqual(swatches[0].value_of_css_property("background-color"), "rgba(238, 130, 238, 1)")
        self.assertIn("unknown", swatches[1].get_attribute("class"))
        orange = self.card("Été clair").find_element(By.CSS_SELECTOR, ".swatch")
        self.assertEqual(orange.value_of_css_property("background-color"), "rgba(255, 136, 0, 1)")

    def test_a_style_without_a_name_says_so(self):
        self.assertEqual(self.names()[-1], "No name")

    def test_an_effect_shows_its_parameters_on_a_click(self):
        card = self.card("Harbour at night")
        chorus, reverb = self.button(card, "Chorus"), self.button(card, "Reverb")
        chorus.click()
        self.assertEqual(self.texts("caption, tbody tr"), [
            "Chorus", "depth\t0.4\tfloat", "mode\twide\ttext", "voices\t3\tint"])
        self.assertEqual(chorus.get_attribute("aria-expanded"), "true")
        reverb.click()
        self.assertEqual(self.texts("caption, tbody tr"), ["Reverb", "mix\t0.25\tfloat", "size\thall\ttext"])
        self.assertEqual(chorus.get_attribute("aria-expanded"), "false")
        reverb.click()
        self.assertEqual(self.all("table"), [])

    def test_an_effect_without_parameters_says_so(self):
        self.button(self.card("Plain"), "Transpose").click()
        self.assertEqual(self.texts(".parameters p"), ["No parameters"])

    def test_details_show_where_a_style_is_and_what_was_found(self):
        card = self.card("Été clair")
        self.assertEqual(card.find_element(By.CSS_SELECTOR, ".badge").text, "1 warning")
        self.button(card, "Details").click()
        details = self.one(".details").text
        self.assertIn("morning.kostyle", details)
        self.assertIn('the member "note" is unknown', details)
        self.assertIn("line 1, column ", details)


class Pressing(Small):
    def test_effects_and_details_open_with_enter_and_space(self):
        effect = self.button(self.card("Plain"), "Transpose")
        self.driver.execute_script("arguments[0].focus()", effect)
        self.press(Keys.ENTER)
        self.assertEqual(len(self.all(".parameters")), 1)
        self.press(Keys.SPACE)
        self.assertEqual(len(self.all(".parameters")), 0)
        self.press(Keys.TAB, Keys.SPACE)
        self.assertEqual(len(self.all(".details")), 1)
        self.press(Keys.ENTER)
        self.assertEqual(len(self.all(".details")), 0)

    def test_a_slash_leads_to_the_search_and_escape_clears_it(self):
        self.press("/")
        self.assertEqual(self.focused().get_attribute("id"), "query")
        self.press("a/b")
        self.assertEqual(self.focused().get_attribute("value"), "a/b")
        self.press(Keys.ESCAPE)
        self.assertEqual(self.focused().get_attribute("value"), "")
        self.assertEqual(self.status(), "4 styles")

    def test_escape_shuts_what_is_open_in_a_card_before_it_clears(self):
        self.one("#query").send_keys("plain")
        self.button(self.card("Plain"), "Transpose").click()
        self.button(self.card("Plain"), "Details").click()
        self.press(Keys.ESCAPE)
        self.assertEqual(self.seen(self.focused()), "Transpose")
        self.assertEqual((len(self.all(".parameters")), len(self.all(".details"))), (0, 1))
        self.press(Keys.ESCAPE)
        self.assertEqual(self.all(".details"), [])
        self.assertEqual(self.status(), "1 of 4 styles")
        self.press(Keys.ESCAPE)
        self.assertEqual(self.status(), "4 styles")

    def test_tab_reaches_everything_in_order(self):
        reached = []
        while True:
            self.press(Keys.TAB)
            if self.focused().tag_name == "body":
                break
            reached.append(self.focused().accessible_name)
        self.assertEqual(reached[:6], ["Skip to the results", "Styles 4", "Problems 5", "Search", "Genre", "Language"])
        self.assertIn("Order", reached)
        self.assertEqual(reached[-1], "Details of the style without a name")
        self.assertEqual(len(reached), len(self.all("a, button, input, select")), reached)

    def test_the_skip_link_leads_past_the_top(self):
        self.press(Keys.TAB, Keys.ENTER)
        self.assertEqual(self.focused().get_attribute("id"), "results")
        self.assertEqual(self.status(), "4 styles")


class Finding(Small):
    def search(self, text):
        self.one("#query").send_keys(text)

    def test_words_are_found_wherever_they_stand(self):
        for words, names in (("night", ["Harbour at night"]), ("NIGHT retro arp", ["Harbour at night"]),
                             ("ete", ["Été clair"]), ("#ff8800", ["Été clair"]), ("delay", ["Été clair"]),
                             ("nameless.kostyle", ["No name"]), ("night delay", [])):
            with self.subTest(words):
                self.search(words)
                self.assertEqual(self.names(), names)
                self.press(Keys.ESCAPE)

    def test_says_how_many_and_when_none(self):
        self.search("night")
        self.assertEqual(self.status(), "1 of 4 styles")
        self.search("zzz")
        self.assertEqual(self.status(), "0 of 4 styles")
        self.assertEqual(self.texts("#empty"), ["Nothing fits. Fewer words or filters find more."])
        self.one("#clear").click()
        self.assertEqual(len(self.names()), 4)
        self.assertEqual(self.texts("#empty"), [])
        self.assertEqual(self.focused().get_attribute("id"), "query")

    def test_filters_narrow_together(self):
        self.choose("genre", "Ambient (2)")
        self.assertEqual(self.names(), ["Été clair", "Harbour at night"])
        self.choose("language", "3 (1)")
        self.assertEqual(self.names(), ["Harbour at night"])
        self.search("clair")
        self.assertEqual(self.names(), [])
        self.one("#clear").click()
        self.choose("effect", "Transpose (1)")
        self.assertEqual(self.names(), ["Plain"])
        self.choose("effect", "All effects")
        self.assertEqual(len(self.names()), 4)

    def test_what_all_or_none_have_is_no_filter(self):
        self.assertEqual(self.texts(".filters label, #order label"),
                         ["Genre", "Language", "Color", "Effect", "Vendor", "Folder", "Order"])

    def test_orders(self):
        for order, names in (("Name", ["Été clair", "Harbour at night", "Plain", "No name"]),
                             ("Most effects", ["Harbour at night", "Été clair", "Plain", "No name"]),
                             ("Vendor", ["Été clair", "Harbour at night", "Plain", "No name"]),
                             ("File", ["Été clair", "Harbour at night", "No name", "Plain"]),
                             ("Name, backwards", ["No name", "Plain", "Harbour at night", "Été clair"])):
            with self.subTest(order):
                self.choose("order", order)
                self.assertEqual(self.names(), names)

    def test_what_is_open_stays_open(self):
        self.button(self.card("Plain"), "Details").click()
        self.search("zzz")
        self.press(Keys.ESCAPE)
        self.assertEqual(len(self.all(".details")), 1)


class Problems(Small):
    def setUp(self):
        super().setUp()
        self.view("problems")

    def files(self):
        return [text.rsplit("/", 1)[-1] for text in self.texts(".file h3")]

    def test_refused_files_come_first(self):
        self.assertEqual(self.status(), "5 files with problems")
        self.assertEqual(self.files()[:2], ["broken.kostyle", "same.kostyle"])
        self.assertEqual(sorted(self.files()[2:]), ["morning.kostyle", "nameless.kostyle", "plain.kostyle"])
        self.assertEqual(self.texts(".file header .badge")[:3], ["Refused", "Refused", "Taken"])

    def test_a_finding_says_what_and_where(self):
        broken = self.all(".file")[0]
        self.assertIn("line 2, column 10", broken.text)
        self.assertIn("json-syntax", broken.text)
        self.assertEqual(broken.find_element(By.CSS_SELECTOR, "mark").text, "}")
        same = self.all(".file")[1].text
        self.assertIn('the identifier "plain" belongs to another file', same)
        self.assertIn("plain.kostyle", same)

    def test_the_severity_chooses(self):
        self.choose("show", "Errors only")
        self.assertEqual(self.files(), ["broken.kostyle", "same.kostyle"])
        self.choose("show", "Errors, warnings and notes")
        self.assertIn("night.kostyle", self.files())
        self.assertIn("Note", self.texts(".finding .badge"))
        self.choose("show", "Errors and warnings")
        self.assertNotIn("Note", self.texts(".finding .badge"))

    def test_the_search_finds_here_too(self):
        self.one("#query").send_keys("repeated-identifier")
        self.assertEqual(self.files(), ["same.kostyle"])
        self.view("styles")
        self.assertEqual(self.status(), "0 of 4 styles")

    def test_back_leads_to_the_styles(self):
        self.assertEqual(self.one("[aria-current=page]").get_attribute("id"), "problems-link")
        self.driver.back()
        self.until(lambda: self.status() == "4 styles")
        self.assertEqual(self.one("[aria-current=page]").get_attribute("id"), "styles-link")

    def test_a_file_that_changed_meanwhile_is_refused_without_a_finding(self):
        start, data, end = re.split(r'(?<=id="data">)(.*?)(?=</script>)', self.page.path.read_text(), maxsplit=1)
        data = json.loads(data)
        next(file for file in data["files"] if file["file"].endswith("broken.kostyle"))["findings"].clear()
        page = self.page.path.with_name("changed.html")
        page.write_text(start + json.dumps(data) + end)
        self.driver.get(page.as_uri())
        self.view("problems")
        self.assertIn("It may have changed meanwhile", self.all(".file")[0].text)

    def test_a_page_without_problems_says_so(self):
        page = collections.Page({"a.kostyle": collections.style(1)})
        self.addCleanup(page.close)
        self.driver.get(page.url)
        self.view("problems")
        self.assertEqual(self.texts("#empty"), ["Nothing was found: every file is taken whole."])

    def test_a_page_without_styles_says_so(self):
        page = collections.Page({})
        self.addCleanup(page.close)
        self.driver.get(page.url)
        self.assertEqual(self.texts("#empty"), ["There are no styles here."])


class Many(PageCase):
    make_page = staticmethod(lambda: collections.many(200))

    def cards(self):
        return len(self.driver.find_elements(By.CSS_SELECTOR, ".card"))

    def test_cards_are_made_as_far_as_one_looks(self):
        self.assertEqual(self.status(), "200 styles")
        self.assertLess(self.cards(), 100)

        def scrolled_to_the_end():
            self.driver.execute_script("scrollTo(0, document.body.scrollHeight)")
            return self.cards() == 200
        self.until(scrolled_to_the_end)
        self.assertEqual(self.all(".more"), [])

    def test_the_button_shows_more_and_moves_on(self):
        before = self.cards()
        self.driver.execute_script("document.querySelector('#styles-view .more').click()")
        self.assertGreater(self.cards(), before)
        self.assertEqual(self.seen(self.focused()), "Reverb")

    def test_a_filter_shows_the_first_again(self):
        self.driver.execute_script("scrollTo(0, 4000)")
        self.choose("genre", "Odd (100)")
        self.assertEqual(self.status(), "100 of 200 styles")
        self.assertEqual(self.names()[0], "Style 1")
