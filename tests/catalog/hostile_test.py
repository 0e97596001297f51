"""Whatever stands in styles, file names and title, it is text: no script runs, nothing is loaded."""
import base64
import hashlib
import json
import re

from selenium.webdriver.common.by import By

import collections_of_styles as collections
from page_case import PageCase


class Hostile(PageCase):
    make_page = staticmethod(collections.hostile)

    def setUp(self):
        self.driver_logs()  # what went before is no matter of this test
        super().setUp()

    def driver_logs(self):
        return self.driver.get_log("browser"), self.driver.get_log("performance")

    def open_all(self):
        """Shows all that the page can show."""
        self.until(lambda: not self.all("#styles-view .more") or self.driver.execute_script(
            "document.querySelector('#styles-view .more').click()"))
        self.driver.execute_script(
            "for (const button of document.querySelectorAll('.effect, .details-button')) button.click()")
        self.view("problems")
        self.choose("show", "Errors, warnings and notes")

    def test_nothing_runs_and_nothing_is_loaded(self):
        self.open_all()
        self.assertTrue(self.all(".finding"))
        self.assertIsNone(self.driver.execute_script("return window.reached ?? null"))
        console, events = self.driver_logs()
        self.assertEqual(console, [])
        messages = [json.loads(event["message"])["message"] for event in events]
        requests = [message["params"]["request"]["url"] for message in messages
                    if message["method"] == "Network.requestWillBeSent"]
        self.assertIn(self.page.url, requests)
        self.assertEqual(set(requests) - {self.page.url, self.page.url + "#problems", "about:blank"}, set())

    def test_no_text_became_an_element(self):
        self.open_all()
        made = self.driver.execute_script(
            "return [...new Set([...document.querySelectorAll('*')].map(({localName}) => localName))]")
        self.assertEqual(set(made) & {"img", "svg", "iframe", "link", "base", "b", "object", "embed"}, set())
        self.assertEqual(len(self.driver.find_elements(By.CSS_SELECTOR, "script")), 2)
        self.assertEqual(len(self.driver.find_elements(By.CSS_SELECTOR, "head > meta")), 6)

    def test_every_text_is_shown_as_it_is(self):
        self.until(lambda: not self.all("#styles-view .more") or self.driver.execute_script(
            "document.querySelector('#styles-view .more').click()"))
        names = set(self.driver.execute_script(
            "return [...document.querySelectorAll('.card h3')].map(({textContent}) => textContent)"))
        plain = [text for text in collections.HOSTILE_TEXTS if text.isprintable() and len(text) <= 100]
        self.assertGreater(len(plain), 15)
        self.assertEqual(set(plain) - names, set())
        self.assertIn("lone \N{REPLACEMENT CHARACTER} <b>", names)
        self.assertIn("\\u202egnp.exe", names)
        self.assertIn("\\u0007\\u001b[31mred\\u007f", names)
        self.assertEqual(self.driver.title, f"</title>{collections.SCRIPT}")

    def test_all_of_it_is_found(self):
        for text in ("__proto__", "</script><script>", "constructor"):
            with self.subTest(text):
                query = self.one("#query")
                query.clear()
                query.send_keys(text)
                self.assertGreater(len(self.all(".card")), 0)
        query.clear()
        self.choose("color", "__proto__ (1)")
        self.assertEqual(self.names(), ["__proto__"])

    def test_the_fragment_is_no_name_of_ours(self):
        for fragment in ("constructor", "__proto__", "<b>"):
            self.driver.get("about:blank")
            self.driver.get(f"{self.page.url}#{fragment}")
            self.assertEqual(self.one("[aria-current]").get_attribute("id"), "styles-link")

    def test_the_policy_stops_what_would_get_in(self):
        attempts = """
            const done = arguments[arguments.length - 1];
            const image = document.createElement("img");
            const script = document.createElement("script");
            const attempts = [
              () => { script.text = "window.reached = 1"; },
              () => { document.body.insertAdjacentHTML("beforeend", "<b></b>"); },
              () => { image.setAttribute("onerror", "window.reached = 2"); },
              () => { setTimeout("window.reached = 3"); },
            ];
            const got = attempts.map((attempt) => {
              try { attempt(); return "passed"; } catch (error) { return error.name; }
            });
            script.append("window.reached = 4");
            image.onload = () => { window.reached = 5; };
            image.onerror = () => fetch(location.href).then(() => "passed", ({name}) => name)
              .then((last) => done([...got, last]));
            image.src = "data:image/gif;base64,R0lGODlhAQABAAAAACwAAAAAAQABAAA=";
            document.body.append(script, image);"""
        self.assertEqual(self.driver.execute_async_script(attempts),
                         ["TypeError"] * 5)
        self.assertIsNone(self.driver.execute_script("return window.reached ?? null"))
        self.driver_logs()

    def test_the_policy_names_what_is_in_the_page(self):
        page = self.page.path.read_text(encoding="utf-8")
        for element, directive in (("style", "style-src"), ('script type="module"', "script-src")):
            text = re.search(f"<{element}>(.*?)</{element.split()[0]}>", page, re.DOTALL).group(1)
            digest = base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()
            self.assertIn(f"{directive} 'sha256-{digest}';", page)
