#include "Engine/WebKit/HandOverScript.h"

namespace tessaro {

// The engine tells a page of files only that there is a list of addresses and no text, and of a
// picture nothing at all.
const char* const handOverScript = R"js((() => {
    'use strict';
    const program = webkit.messageHandlers.files;
    const bytesOf = text => {
        const letters = atob(text);
        const bytes = new Uint8Array(letters.length);
        for (let i = 0; i < bytes.length; ++i)
            bytes[i] = letters.charCodeAt(i);
        return bytes;
    };
    const receive = async offer => {
        const files = [];
        for (const {id, name, type} of await program.postMessage(offer)) {
            const parts = [];
            try {
                for (let part; (part = await program.postMessage(id)); )
                    parts.push(bytesOf(part));
                files.push(new File(parts, name, {type}));
            } catch {
                // It cannot be read, or no longer: half of it is worth nothing.
            }
        }
        return files;
    };
    const dataOf = files => {
        const data = new DataTransfer();
        files.forEach(file => data.items.add(file));
        return data;
    };
    const withhold = event => {
        event.preventDefault();
        event.stopImmediatePropagation();
    };

    addEventListener('paste', async event => {
        const given = event.clipboardData;
        if (!event.isTrusted || given.types.includes('text/plain') || given.files.length)
            return;
        withhold(event);
        const target = event.composedPath()[0];
        const html = given.getData('text/html');
        const data = dataOf(await receive('copied'));
        if (html)
            data.setData('text/html', html);
        const isTaken = !target.dispatchEvent(new ClipboardEvent('paste', {
            bubbles: true, cancelable: true, composed: true, clipboardData: data}));
        if (html && !isTaken)
            document.execCommand('insertHTML', false, html);
    }, true);

    // A page that drags something of its own gives it what types it likes.
    let isOwnDrag = false;
    addEventListener('dragstart', () => isOwnDrag = true, true);
    addEventListener('dragend', () => isOwnDrag = false, true);

    // Which files they are is told when they are dropped.
    const unknown = [new File([], '')];
    const tell = (type, {target, event}, files = unknown, relatedTarget = null) =>
        !target.dispatchEvent(new DragEvent(type, {
            bubbles: true, cancelable: type !== 'dragleave', composed: true, view: window,
            clientX: event.clientX, clientY: event.clientY,
            screenX: event.screenX, screenY: event.screenY,
            ctrlKey: event.ctrlKey, shiftKey: event.shiftKey, altKey: event.altKey,
            metaKey: event.metaKey, relatedTarget, dataTransfer: dataOf(files)}));
    // Other engines tell of a drag again and again while it rests, and pages count on that. Here
    // the last word is told again after each change of the element that is below.
    let place = null;
    for (const type of ['dragenter', 'dragover', 'dragleave', 'drop'])
        addEventListener(type, async event => {
            const {types} = event.dataTransfer;
            if (!event.isTrusted || isOwnDrag || !types.includes('text/uri-list') ||
                types.includes('text/plain'))
                return;
            withhold(event);
            const here = {target: event.composedPath()[0], event};
            if (type === 'drop') {
                place = null;
                const files = await receive('dropped');
                tell(files.length ? 'drop' : 'dragleave', here, files);
            } else if (type === 'dragleave') {
                if (place?.target === here.target)
                    place = null;
                tell('dragleave', here, unknown, place?.target);
                if (place)
                    tell('dragover', place);
            } else {
                if (type === 'dragenter')
                    tell('dragenter', here, unknown, place?.target);
                place = here;
                event.dataTransfer.dropEffect = tell('dragover', here) ? 'copy' : 'none';
            }
        }, true);
})();)js";

} // namespace tessaro
