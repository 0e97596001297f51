// A list that grows as far as it is looked at, so that the page is as quick with thousands of items as with ten.

const first = 12;  // about as many as a window shows
const further = 24;

class GrowingList {
  #list;
  #button;
  #make;
  #made = new Map();
  #items = [];
  #count = 0;
  #nearEnd;

  // `make` makes the element of an item; it is kept, with all that was opened in it.
  constructor(section, make) {
    this.#list = section.querySelector("ul");
    this.#button = section.querySelector(".more");
    this.#make = make;
    this.#button.addEventListener("click", () => {
      const last = this.#list.lastElementChild;
      this.#grow(further);
      last.nextElementSibling.querySelector("button")?.focus();
    });
    this.#nearEnd = new IntersectionObserver((entries) => {
      if (entries.at(-1).isIntersecting) this.#grow(further);
    }, {rootMargin: "1000px"});
  }

  show(items) {
    this.#items = items;
    this.#count = 0;
    this.#list.replaceChildren();
    this.#grow(first);
  }

  #grow(by) {
    const next = this.#items.slice(this.#count, this.#count + by);
    this.#count += next.length;
    this.#list.append(...next.map((item) => this.#element(item)));
    this.#button.hidden = this.#count === this.#items.length;
    // What stays in view is not told again by itself.
    this.#nearEnd.disconnect();
    if (!this.#button.hidden) this.#nearEnd.observe(this.#button);
  }

  #element(item) {
    if (!this.#made.has(item)) this.#made.set(item, this.#make(item, this.#made.size));
    return this.#made.get(item);
  }
}
