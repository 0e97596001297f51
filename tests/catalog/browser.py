"""A headless Chromium that a page is tried in, and that is gone with all it wrote afterwards."""
import contextlib
import pathlib
import shutil
import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

FLAGS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync", "--hide-scrollbars",
         "--force-color-profile=srgb", "--lang=en"]


@contextlib.contextmanager
def browser(width=1280, height=900):
    profile = pathlib.Path(tempfile.mkdtemp(prefix="kostyle-browser-"))
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for flag in [*FLAGS, f"--user-data-dir={profile}", f"--window-size={width},{height}"]:
        options.add_argument(flag)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    try:
        driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        try:
            yield driver
        finally:
            driver.quit()
    finally:
        shutil.rmtree(profile, ignore_errors=True)


def set_size(driver, width, height, scale=1):
    """The size of the page in CSS pixels, whatever windows the system allows."""
    driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                           {"width": width, "height": height, "deviceScaleFactor": scale, "mobile": False})


def set_media(driver, **features):
    """What the page is told by media queries: set_media(driver, prefers_color_scheme="dark")."""
    driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
        "features": [{"name": name.replace("_", "-"), "value": value} for name, value in features.items()]})
