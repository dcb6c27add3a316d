// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.Editor 1.0
import Nuvex.Native 1.1
import "limits.js" as Limits
import "outline.js" as Outline
import "placing.js" as Placing

/// The document that is being edited, as the pages and panels of an editor work on it: opened, shown, undone, saved,
/// played. What is done to its items stands in the desk's parts. Source, item map and live document go together; when
/// a change cannot be shown, all three are what they were before.
QtObject {
    id: root

    /// Whether fingers work on it: what is to be hit on the canvas is larger.
    property bool forTouch: false
    /// Loads the editing frame; the page has it on its canvas.
    property Loader frameHost
    readonly property Item frame: frameHost ? frameHost.item : null

    readonly property LiveDocument live: LiveDocument {}
    readonly property DocumentFaults judge: DocumentFaults {}
    readonly property ProjectStill still: ProjectStill {}
    readonly property TextFile file: TextFile { path: "main.qml" }
    readonly property Selection selection: Selection { desk: root }
    readonly property Layers layers: Layers { desk: root }
    readonly property Slides slides: Slides { desk: root }
    readonly property Changes changes: Changes { desk: root }
    readonly property Insertion insertion: Insertion { desk: root }
    readonly property FileDrop fileDrop: FileDrop { desk: root }
    readonly property Arrangement arrangement: Arrangement { desk: root }
    readonly property Recovery recovery: Recovery {}

    /// Counts changes of source and selection, so that what is read from them follows.
    property int revision: 0
    property bool canUndo: false
    property bool canRedo: false
    /// Whether the source differs from what was saved last.
    property bool isChanged: false
    /// Why the document cannot be shown: a map of "line", "column" and "message"; null when it is shown.
    property var fault: null

    /// Whether documents that take long are shown without asking.
    property bool takesLarge: false

    property string savedSource
    // Why the last reload failed, as `fault`.
    property var refusal: null
    /// Why the project's files are to stay as they are now, in words; "" when they may be written.
    property string hold

    /// Something to say to the user for so many milliseconds; `kind` is "info" or "danger".
    signal told(string text, string kind, int duration)
    /// The document was made anew.
    signal shown()
    /// What goes on is to be ended before something else is done.
    signal settling()
    /// Others have made `source` the document on disk, while it has changes here that are not saved. Either take() it,
    /// or it becomes the savedSource, which the next save() replaces.
    signal changedElsewhere(string source)
    /// The document takes long to show; `why` in words. Nothing is shown until showLarge().
    signal largeFound(string why)

    Component.onDestruction: live.clear()

    function open() {
        Ejs.JCAPI = CAPI;
        Ejs.selectItem = takePanelChange;
        CAPI.readSourceCode("main.qml");
        root.savedSource = CAPI.editedSourceCode();
        still.project = CAPI.getBaseProjectName();
        if (begin())
            frame.viewport.fit();
        Ejs.dirmap = CAPI.dirmap();
        refresh();
        recovery.look(root.savedSource);
        if (!hasOwnFrame())
            say(qsTr("This project cannot be written to: what is changed here cannot be saved."));
    }

    // Shows the source for the first time. False when it cannot be shown; `fault` says why.
    function begin() {
        const large = largeness(CAPI.editedSourceCode());
        if (large !== "") {
            largeFound(large);
            return false;
        }
        CAPI.generateEditor();
        const isMade = make(CAPI.editedSourceCode());
        Ejs.map = isMade ? CAPI.getMap() : [];
        layers.clear();
        selection.clear();
        root.shown();
        return isMade;
    }

    // Shows a document that takes long, as the user wants it, and all that follow.
    function showLarge() {
        root.takesLarge = true;
        if (begin())
            frame.viewport.fit();
        refresh();
    }

    // What makes `source` take long to show, in words; "" when nothing does, or the user wants it so.
    function largeness(source) {
        const burden = root.takesLarge ? null : judge.burden(source);
        if (burden && burden.objects >= Limits.largeCount)
            return burden.line > 0 ? qsTr("Line %1 makes it %2 items.").arg(burden.line).arg(inDigits(burden.objects))
                                   : qsTr("It has %1 items.").arg(inDigits(burden.objects));
        return burden && burden.characters >= Limits.largeDocument
               ? qsTr("Its source has %1 characters.").arg(burden.characters) : "";
    }

    function inDigits(count) {
        return count.toFixed(0);
    }

    // Makes the source the live document, in the frame. The first time it brings the frame.
    function make(source) {
        const isMade = live.load(source, CAPI.baseFolder(), frame ? frame.viewport : frameHost);
        root.fault = isMade ? null
                   : source.trim() === "" ? { line: 0, column: 0, message: whyEmpty() } : live.faults[0];
        if (!isMade)
            return false;
        if (!frame)
            frameHost.setSource(frameUrl(), { myfill: live.root, desk: root });
        else
            frame.myfill = live.root;
        Ejs.editorObj = live.root;
        return true;
    }

    function whyEmpty() {
        return file.isReadable ? qsTr("It is empty.")
                               : qsTr("Its file is missing, cannot be read, or is too large for a text.");
    }

    // Puts `code` in place of a source that cannot be shown.
    function replaceAll(code) {
        CAPI.setSourceCode(code);
        if (begin()) {
            frame.viewport.fit();
            finish();
        }
    }

    // Makes `source` the document, as one change.
    function adopt(source) {
        settle();
        if (root.fault) {
            replaceAll(source);
            return;
        }
        const before = CAPI.editedSourceCode();
        CAPI.setSourceCode(source);
        if (showSource(before, before))
            finish();
    }

    // Whether the project holds a copy of the editing frame, which each start of an editor puts there.
    function hasOwnFrame() {
        return CAPI.fileExist(CAPI.editorVersion());
    }

    function frameUrl() {
        const path = CAPI.baseFolder() + "/" + CAPI.editorVersion();
        return hasOwnFrame() ? "file:///" + encodeURI(path).replace(/[?#]/g, encodeURIComponent)
                             : "qrc:///Nuvex/PlayerQML/Editor.qml";
    }

    // Shows the document as its source is now; the item map is still of the source `mapped`. On failure it says why and
    // leaves the view as it is.
    function reload(mapped) {
        const selected = selection.placesOf(selection.items);
        const layered = layers.places();
        const large = largeness(CAPI.editedSourceCode());
        CAPI.generateEditor();
        if (large !== "" || !live.load(CAPI.editedSourceCode(), CAPI.baseFolder(), frame.viewport)) {
            root.refusal = large !== "" ? { line: 0, message: qsTr("Too large: %1").arg(large) } : live.faults[0];
            sayFault(root.refusal);
            return false;
        }
        frame.myfill = live.root;
        Ejs.editorObj = live.root;
        Ejs.map = CAPI.getMap();
        layers.restore(layered, mapped);
        selection.set(selection.foundAt(selected, mapped));
        root.fault = null;
        root.shown();
        return true;
    }

    // Shows the source as it is now. When that fails the source is again `before`. The item map is in step with the
    // source, or else of the source `mapped`.
    function showSource(before, mapped) {
        const source = mapped === undefined ? CAPI.editedSourceCode() : mapped;
        if (reload(source))
            return true;
        const fault = root.refusal;
        CAPI.setSourceCode(before);
        if (!reload(source))
            begin();
        sayFault(fault);
        return false;
    }

    // Makes the live document anew from an unchanged source.
    function showAgain() {
        const source = CAPI.editedSourceCode();
        showSource(source);
    }

    // Ends a change: one state of the history, whatever it held.
    function finish() {
        Ejs.propertyEdited = true;
        Ejs.codeEdited = true;
        Ejs.element = selection.item ? selection.item.element : -1;
        CAPI.saveEditingState();
        refresh();
        // Publishing follows close upon the first saving, and shows what there is then.
        if (String(still.source) === "")
            takeStill();
    }

    // Takes the picture that stands for the project elsewhere.
    function takeStill() {
        if (root.fault === null)
            still.take(live.root);
    }

    // Reads anew what the selected item's source says.
    function refresh() {
        ++revision;
        const source = CAPI.editedSourceCode();
        root.isChanged = source !== root.savedSource;
        if (root.isChanged)
            recovery.keep(source);
    }

    // Follows a change by the item's panel. What is made several times from its source is made anew.
    function takePanelChange() {
        refresh();
        if (selection.isRepeated)
            Qt.callLater(showAgain);
    }

    // Ends what goes on: a burst of keys, a text that is being written become changes.
    function settle() {
        changes.settle();
        settling();
    }

    function undo() {
        settle();
        step(() => CAPI.getBackwardSource(), () => CAPI.getForwardSource(), () => root.canUndo);
    }

    function redo() {
        settle();
        step(() => CAPI.getForwardSource(), () => CAPI.getBackwardSource(), () => root.canRedo);
    }

    // Goes to the next state that was filled; where there is none, it stays.
    function step(go, back, canGo) {
        const before = CAPI.editedSourceCode();
        let text = "";
        while (text === "" && canGo())
            text = go();
        if (text === "" || !reload(before)) {
            while (CAPI.editedSourceCode() !== before)
                back();
        }
        refresh();
    }

    // Puts `code` in place of the selected item's source, and selects the item that it describes.
    function applySource(code) {
        settle();
        const before = CAPI.editedSourceCode();
        const identification = code.slice(0, code.lastIndexOf("}") + 1);
        if (!Ejs.replaceElement(code)) {
            say(Ejs.problem);
            return false;
        }
        if (!showSource(before))
            return false;
        const element = Ejs.map.findIndex(record => CAPI.sourceCode(record.pfirst, record.plast) === identification);
        const item = Ejs.childrenByElement(live.root, element);
        selection.set(item ? [item] : []);
        finish();
        return true;
    }

    function save() {
        settle();
        if (hold !== "") {
            say(hold);
            return false;
        }
        const source = CAPI.editedSourceCode();
        if (CAPI.parseAndGetMap(source).length === 0) {
            say(qsTr("Not saved: the source is no document."));
            return false;
        }
        if (isOtherOnDisk()) {
            takeIn();
            return false;
        }
        const isFolderGone = !CAPI.fileExist(".");
        if (!CAPI.writeToFile(source, "main.qml")) {
            say(qsTr("Not saved: the file cannot be written. Is the disk full, or the project protected?"));
            return false;
        }
        Ejs.dirmap = isFolderGone ? { "main.qml": Ejs.dirmap["main.qml"] } : Ejs.dirmap;
        Ejs.dirmap["main.qml"] = (Ejs.dirmap["main.qml"] || 0) + 1;
        CAPI.updateDirmapFile(Ejs.dirmap);
        root.savedSource = source;
        root.isChanged = false;
        recovery.forget();
        takeStill();
        if (isFolderGone)
            say(qsTr("Saved. But the project's folder was gone, with its pictures and other files."));
        else
            tell("Saved local", "info", Limits.doneMessage);
        return true;
    }

    // Saves what is not saved. False when the project on disk is not what is shown.
    function saveChanges() {
        settle();
        if (root.fault) {
            sayFault(root.fault);
            return false;
        }
        return !isChanged || save();
    }

    // Whether the document's file is there, and other than it was read or saved.
    function isOtherOnDisk() {
        const source = CAPI.readTextFile("main.qml");
        return source !== "" && source !== root.savedSource;
    }

    // Takes in what others have written into the project. Changes that are not saved stay until it is said what counts.
    function takeIn() {
        Ejs.dirmap = CAPI.dirmap();
        if (still.project === "" || !isOtherOnDisk())
            return;
        settle();
        const source = CAPI.readTextFile("main.qml");
        if (CAPI.editedSourceCode() === root.savedSource)
            take(source);
        else
            changedElsewhere(source);
    }

    // Makes `source`, which others have saved, the document.
    function take(source) {
        root.savedSource = source;
        adopt(source);
        refresh();
    }

    // Writes the source where it can be played from; the file's name, "" when that failed.
    function preparePlay() {
        settle();
        if (root.fault) {
            sayFault(root.fault);
            return "";
        }
        CAPI.removeFile("main2.qml");
        if (CAPI.writeToFile(CAPI.editedSourceCode(), "main2.qml"))
            return "main2.qml";
        say(qsTr("It cannot be played: the file cannot be written."));
        return "";
    }

    function tell(text, kind, duration) {
        root.told(text, kind, duration);
    }

    // Says why something was not done.
    function say(problem) {
        tell(problem, "danger", Limits.faultMessage);
    }

    function sayFault(fault) {
        say(fault.line > 0 ? qsTr("Line %1: %2").arg(fault.line).arg(fault.message) : fault.message);
    }

    /// The import lines of the document.
    function imports() {
        const record = live.root ? Ejs.map[live.root.element] : null;
        return record ? CAPI.sourceCode(0, record.pfirst) : "";
    }

    /// What the source calls the item: its id, else "".
    function nameOf(item) {
        const record = item ? Ejs.map[item.element] : null;
        return record ? Outline.idOf(record) : "";
    }

    /// The item's type and, if it has one, its name.
    function titleOf(item) {
        const record = item ? Ejs.map[item.element] : null;
        const name = nameOf(item);
        return record ? (name === "" ? record.typename : qsTr("%1 · %2").arg(record.typename).arg(name)) : "";
    }

    /// What decides where the item stands; see placing.js.
    function placingOf(item) {
        const record = Ejs.map[item.element];
        if (item === live.root || !record)
            return Placing.fixedBy("");
        if (layers.isLocked(item))
            return Placing.fixedBy("lock");
        if (item.isSlide === true && item.parent && item.parent.slides !== undefined)
            return Placing.fixedBy("slideshow");
        return Placing.withBindings(live.placement(item), record);
    }

    function isReorderable(item) {
        return ["row", "column", "grid", "flow", "layout"].indexOf(placingOf(item).by) >= 0;
    }

    readonly property Connections end: Connections {
        target: Qt.application

        function onAboutToQuit() {
            root.settle();
            root.recovery.flush();
        }
    }

    readonly property Connections states: Connections {
        target: CAPI

        function onProjectUpdated() {
            root.takeIn();
        }

        function onOlderEditingState(ok) {
            root.canUndo = !ok;
        }

        function onNewerEditingState(ok) {
            root.canRedo = !ok;
        }
    }
}
