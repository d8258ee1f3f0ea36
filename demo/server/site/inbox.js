// A small message inbox. What is answered lives in this page until it is reloaded; only attached
// files go to the server.
"use strict";

const assetId = new URLSearchParams(location.search).get("asset_id") ?? "";
const find = (selector) => document.querySelector(selector);
let conversations = [];
let open = null;
let sent = 0;
let played = 0;
let recorded = 0;
let recorder = null;
const attached = [];

function element(tag, className, text = "") {
  const made = document.createElement(tag);
  made.className = className;
  made.textContent = text;
  return made;
}

// A round picture with the initials of a name, drawn as a picture so that it keeps its colour
// under a dark style.
function face(name, color) {
  const initials = name.split(" ").slice(-2).map((word) => word[0]).join("");
  const picture = document.createElement("img");
  picture.alt = "";
  picture.src = "data:image/svg+xml," + encodeURIComponent(
    `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 44 44"><rect width="44" height="44" fill="${color}"/>` +
    `<text x="22" y="28" text-anchor="middle" font-family="Cantarell,sans-serif" font-size="16" ` +
    `font-weight="700" fill="white">${initials}</text></svg>`);
  return picture;
}

// "Hoa" finds "hoá": a person in a hurry leaves the marks out.
const plain = (text) => text.normalize("NFD").replace(/\p{M}/gu, "").replace(/đ/gi, "d").toLowerCase();

const address = (file) => "/latest/inbox/files/" + encodeURIComponent(file);

function showTitle() {
  const unread = conversations.reduce((sum, one) => sum + one.unread, 0);
  document.title = (unread ? `(${unread}) ` : "") + `${find(".page-name").textContent} – Trang minh họa`;
}

function showList() {
  showTitle();
  const wanted = plain(find(".search").value.trim());
  const shown = conversations.filter((one) =>
    plain([one.name, ...one.messages.map((message) => message.text)].join(" ")).includes(wanted));
  find(".conversations").replaceChildren(...shown.map((one) => {
    const row = element("button", "");
    row.type = "button";
    row.setAttribute("aria-current", String(one === open));
    const picture = element("span", "picture");
    picture.append(face(one.name, one.color));
    row.append(picture, element("span", "name", one.name), element("span", "time", one.messages.at(-1).time),
      element("span", "last", one.messages.at(-1).text || one.messages.at(-1).file || "Tin nhắn thoại"));
    if (one.unread) row.append(element("span", "unread", one.unread));
    row.addEventListener("click", () => openConversation(one));
    const item = document.createElement("li");
    item.append(row);
    return item;
  }));
  find(".nothing").hidden = shown.length > 0;
}

// A video or a voice message, and a button that plays it.
function player(media) {
  const made = element(/mp4$/.test(media) ? "video" : "audio", "");
  made.src = media;
  made.addEventListener("ended", () => played += 1);
  const play = element("button", "play", "▶ Phát");
  play.type = "button";
  play.addEventListener("click", () => made.play());
  return [made, play];
}

function showThread() {
  find(".thread").hidden = !open;
  if (!open) return;
  find(".customer-picture").replaceChildren(face(open.name, open.color));
  find(".customer").textContent = open.name;
  find(".status").textContent = "Đang hoạt động";
  const list = find(".messages");
  list.replaceChildren(element("li", "time", "Hôm nay"),
    ...open.messages.map((message) => {
      const item = element("li", message.from, message.text);
      if (message.isPicture) item.append(Object.assign(element("img", "photo"), { src: address(message.file), alt: "" }));
      if (message.file) item.append(Object.assign(element("a", "file", `⬇ ${message.file}`), { href: address(message.file) }));
      if (message.media) item.append(...player(message.media));
      return item;
    }));
  if (open.typing) list.append(element("li", "typing", `${open.name} đang nhập…`));
  list.scrollTop = list.scrollHeight;
}

function openConversation(one) {
  open = one;
  if (one) one.unread = 0;
  showList();
  showThread();
}

function add(one, from, text, more = {}) {
  const time = new Date().toLocaleTimeString("vi", { hour: "2-digit", minute: "2-digit" });
  one.messages.push({ from, text, time, ...more });
  showList();
  showThread();
}

// A customer wrote: counted, unless that conversation is open, and told of by a notification.
function receive(one, text) {
  if (one !== open) one.unread += 1;
  add(one, "them", text);
  if (Notification.permission !== "granted") return;
  const notification = new Notification(one.name, { body: text });
  notification.onclick = () => {
    openConversation(one);
    notification.close();
  };
}

// The browser asks the person, so the page asks for it once it is wanted only.
const showNotify = () => find(".notify").hidden = Notification.permission !== "default";
find(".notify").addEventListener("click", () => Notification.requestPermission().then(showNotify));
showNotify();

find(".search").addEventListener("input", showList);
find(".search").addEventListener("keydown", (event) => {
  if (event.key !== "Enter") return;
  find(".conversations button")?.click();
  find(".answer").focus();
});

async function send(files) {
  const one = open;
  for (const file of files) {
    await fetch(address(file.name), { method: "POST", body: file });
    attached.push(`${file.name} ${file.type} ${file.size}`);
    add(one, "us", "", { file: file.name, isPicture: file.type.startsWith("image/") });
  }
}

// Pictures and files are pasted into the answer, or dropped anywhere on the conversation.
find(".answer").addEventListener("paste", (event) => {
  if (!event.clipboardData.files.length) return;
  event.preventDefault();
  send(event.clipboardData.files);
});
const showDropping = (isDropping) => find(".drop-here").hidden = !isDropping;
find(".thread").addEventListener("dragover", (event) => {
  if (!event.dataTransfer.types.includes("Files")) return;
  event.preventDefault();
  showDropping(true);
});
find(".thread").addEventListener("dragleave", (event) => {
  if (!find(".thread").contains(event.relatedTarget)) showDropping(false);
});
find(".thread").addEventListener("drop", (event) => {
  if (!event.dataTransfer.files.length) return;
  event.preventDefault();
  showDropping(false);
  send(event.dataTransfer.files);
});

// A window that is opened at once, as only a click may, and led to its page when that is known.
find(".invoice").addEventListener("click", () => {
  const invoice = window.open("");
  setTimeout(() => invoice.location = "/latest/inbox/invoice", 300);
});

window.addEventListener("beforeunload", (event) => {
  if (find(".answer").value) event.preventDefault();
});

find(".attach").addEventListener("click", () => find(".chosen").click());
find(".chosen").addEventListener("change", async (event) => {
  await send(event.target.files);
  event.target.value = "";
});

// The first press begins a voice message, the second one sends it.
find(".record").addEventListener("click", async () => {
  if (recorder) return recorder.stop();
  const one = open;
  const stream = await navigator.mediaDevices.getUserMedia({ audio: true }).catch(() => null);
  if (!stream) return;
  const parts = [];
  recorder = new MediaRecorder(stream);
  recorder.addEventListener("dataavailable", (event) => {
    parts.push(event.data);
    recorded += event.data.size;
  });
  recorder.addEventListener("stop", () => {
    stream.getTracks().forEach((track) => track.stop());
    const voice = new Blob(parts, { type: recorder.mimeType });
    recorder = null;
    find(".record").ariaPressed = "false";
    if (voice.size) add(one, "us", "", { media: URL.createObjectURL(voice) });
  });
  recorder.start(250);
  find(".record").ariaPressed = "true";
});

find(".composer").addEventListener("submit", (event) => {
  event.preventDefault();
  const field = find(".answer");
  const text = field.value.trim();
  const one = open;
  if (!text || !one) return;
  field.value = "";
  one.typing = true;
  sent += 1;
  add(one, "us", text);
  setTimeout(() => {
    one.typing = false;
    receive(one, one.replies[one.answered = ((one.answered ?? -1) + 1) % one.replies.length]);
  }, 900);
});

find(".archive").addEventListener("click", () => {
  if (!confirm(`Lưu trữ cuộc trò chuyện với ${open.name}?`)) return;
  conversations = conversations.filter((one) => one !== open);
  openConversation(conversations[0] ?? null);
});

// Tells the server how the page is being shown, whenever something of it changed.
const visible = (selector) => {
  const bar = find(selector);
  const style = getComputedStyle(bar);
  return style.display !== "none" && style.visibility !== "hidden" && bar.offsetWidth > 0;
};
let reported = "";
setInterval(() => {
  const answer = find(".answer").getBoundingClientRect();
  const view = JSON.stringify({
    assetId,
    navBar: visible('[data-testid="mbs_nav_bar"]'),
    sideNav: visible('[data-testid="mbs_side_nav"]'),
    dark: getComputedStyle(document.documentElement).filter !== "none",
    width: innerWidth,
    zoom: Math.round(devicePixelRatio * 100) / 100,
    answerMiddle: { x: answer.x + answer.width / 2 - innerWidth, y: answer.y + answer.height / 2 - innerHeight },
    focus: document.activeElement.className,
    stop: [...document.querySelectorAll("a, button, input")].indexOf(document.activeElement),
    draft: find(".answer").value,
    dropping: !find(".drop-here").hidden,
    attached,
    conversation: open?.name ?? "",
    conversations: conversations.length,
    messages: open?.messages.length ?? 0,
    sent,
    played,
    recorded,
    notifications: Notification.permission,
    userAgent: navigator.userAgent,
  });
  if (view === reported) return;
  reported = view;
  navigator.sendBeacon("/latest/inbox/view", view);
}, 150);

fetch(`/latest/inbox/conversations?asset_id=${encodeURIComponent(assetId)}`)
  .then((answer) => answer.json())
  .then((page) => {
    if (page.error) throw new Error(page.error);
    find(".page-name").textContent = page.name;
    const picture = page.picture ? document.createElement("img") : face(page.name, "#b9722e");
    if (page.picture) picture.src = page.picture + "?size=100";
    picture.alt = "";
    find(".page-picture").replaceChildren(picture);
    conversations = page.conversations;
    openConversation(conversations[0]);
  })
  .catch((error) => {
    find(".page-name").textContent = error.message;
    find(".thread").hidden = true;
  });
