"""What the tests of the page share: one browser for all, and ways to find and to press."""
import atexit
import contextlib
import unittest

from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.support.ui import Select, WebDriverWait

from browser import browser, set_media, set_size

_open = contextlib.ExitStack()
atexit.register(_open.close)
_drivers = []


def the_browser():
    if not _drivers:
        _drivers.append(_open.enter_context(browser()))
    return _drivers[0]


class PageCase(unittest.TestCase):
    """Each test sees the page as it is when it is opened."""

    @staticmethod
    def make_page():
        raise NotImplementedError

    @classmethod
    def setUpClass(cls):
        cls.page = cls.make_page()
        cls.addClassCleanup(cls.page.close)
        cls.driver = the_browser()

    def setUp(self):
        set_size(self.driver, 1280, 900)
        set_media(self.driver, prefers_color_scheme="light", prefers_reduced_motion="reduce")
        # From another page, so that a fragment of before is gone.
        self.driver.get("about:blank")
        self.driver.get(self.page.url)

    def all(self, selector):
        """The elements that are shown, wherever one has scrolled to. What came into view has no text before it is
        drawn, so this waits for the next frame."""
        return self.driver.execute_async_script("""
            const [selector, done] = arguments;
            const shown = () => [...document.querySelectorAll(selector)].filter((found) => found.checkVisibility());
            requestAnimationFrame(() => setTimeout(() => done(shown())));""", selector)

    def one(self, selector):
        found = self.all(selector)
        self.assertEqual(len(found), 1, selector)
        return found[0]

    def texts(self, selector):
        return self.driver.execute_script("return arguments[0].map(({innerText}) => innerText)", self.all(selector))

    def names(self):
        return self.texts(".card h3")

    def card(self, name):
        return next(card for card in self.all(".card") if card.find_element(By.CSS_SELECTOR, "h3").text == name)

    def button(self, place, name):
        """A button in a place, by the text that can be seen on it."""
        buttons = place.find_elements(By.CSS_SELECTOR, "button")
        return next(found for found in buttons if self.seen(found) == name)

    @staticmethod
    def seen(element):
        return element.text.splitlines()[0]

    def status(self):
        return self.one("#status").text

    def press(self, *keys):
        ActionChains(self.driver).send_keys(*keys).perform()

    def focused(self):
        return self.driver.switch_to.active_element

    def choose(self, control, text):
        select = Select(self.one(f"#filter-{control}"))
        select.select_by_visible_text(text)

    def view(self, name):
        self.one(f"#{name}-link").click()
        self.until(lambda: self.one("[aria-current]").get_attribute("id") == f"{name}-link")

    def until(self, condition):
        WebDriverWait(self.driver, 10, poll_frequency=0.05).until(lambda _: condition())
