// Elements are made of text alone: nothing in a style can become markup.

function element(name, attributes, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, value);
  made.append(...children);
  return made;
}

// A text of a style or a file. Its direction is its own and turns nothing around it.
function foreign(name, text, className = "") {
  return element(name, {dir: "auto", ...(className && {class: className})}, text);
}

function hidden(text) {
  return element("span", {class: "visually-hidden"}, text);
}

function counted(count, one, many = `${one}s`) {
  return `${count.toLocaleString("en")} ${count === 1 ? one : many}`;
}

// A button that shows and hides an element, which is made when it is first shown.
function disclosure(button, makePanel) {
  let panel = null;
  const toggle = (open) => {
    if (open && !panel) {
      panel = makePanel();
      panel.id = `panel-${++disclosure.count}`;
      button.setAttribute("aria-controls", panel.id);
    }
    if (panel) panel.hidden = !open;
    button.setAttribute("aria-expanded", String(open));
  };
  button.setAttribute("aria-expanded", "false");
  return toggle;
}
disclosure.count = 0;
