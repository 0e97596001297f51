// A list that grows as far as it is looked at, so that the page is as quick with thousands of items as with ten.

class GrowingList {
  #list;
  #button;
  #make;
  #made = new Map();
  #items = [];
  #count = 0;

  // `make` makes the element of an item; it is kept, with all that was opened in it.
  constructor(section, make) {
    this.#list = section.querySelector("ul");
    this.#button = section.querySelector(".more");
    this.#make = make;
    this.#button.addEventListener("click", () => {
      const last = this.#list.lastElementChild;
      this.#grow(48);
      last.nextElementSibling.querySelector("button")?.focus();
    });
    const nearEnd = new IntersectionObserver(([entry]) => {
      if (entry.isIntersecting) this.#grow(48);
    }, {rootMargin: "1500px"});
    nearEnd.observe(this.#button);
    this.watchAgain = () => {
      nearEnd.unobserve(this.#button);
      nearEnd.observe(this.#button);
    };
  }

  show(items) {
    this.#items = items;
    this.#count = 0;
    this.#list.replaceChildren();
    this.#grow(24);
  }

  #grow(by) {
    const next = this.#items.slice(this.#count, this.#count + by);
    this.#count += next.length;
    this.#list.append(...next.map((item) => this.#element(item)));
    this.#button.hidden = this.#count === this.#items.length;
    // What is in view already is not told again.
    if (!this.#button.hidden) this.watchAgain();
  }

  #element(item) {
    if (!this.#made.has(item)) this.#made.set(item, this.#make(item, this.#made.size));
    return this.#made.get(item);
  }
}
