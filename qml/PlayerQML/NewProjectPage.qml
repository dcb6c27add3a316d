// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"
import "private/templates.js" as Templates

/// Makes a project: its name, what it begins with and the size of its screen. It opens in the editor.
FormPage {
    id: root

    readonly property string projectName: name.text.trim()

    // Why the name cannot be a project's, in words; "" when it can.
    function nameProblem() {
        if (projectName === "")
            return qsTr("A project needs a name.");
        if (/^\.|[\/\\:*?"<>|]|_temp$/.test(projectName))
            return qsTr("A name must not begin with a dot, end in _temp or hold / \\ : * ? \" < > |");
        return CAPI.getProjectList().indexOf(projectName) >= 0 ? qsTr("There is a project of that name.") : "";
    }

    function create() {
        name.error = nameProblem();
        if (name.error !== "")
            return;
        const isMade = CAPI.createProject(projectName);
        if (!isMade || !begin()) {
            if (isMade)
                CAPI.removeProject(projectName);
            name.error = qsTr("The project cannot be made in %1. Is the disk full?").arg(CAPI.getWorkDirectory());
            return;
        }
        CAPI.setSetting("lastProject", projectName);
        const stack = shell;
        stack.pop({ item: null, immediate: true });
        stack.edit();
    }

    // Writes the first files and lists them. False when that failed.
    function begin() {
        CAPI.setBaseFolder(projectName);
        return template.current === "" ? beginEmpty() : Templates.copy(template.current);
    }

    function beginEmpty() {
        const document = "import QtQuick 2.15\nimport Nuvex.Components 1.0\n\nRectangle {\n    width: %1\n"
                         + "    height: %2\n    color: \"#ffffff\"\n}\n";
        return CAPI.writeToFile(document.arg(across.value).arg(down.value), "main.qml")
            && CAPI.updateDirmapFile({ "main.qml": 1 });
    }

    // A template has a size of its own.
    function showSize() {
        const size = template.current === "" ? { width: 1920, height: 1080 } : Templates.sizeOf(template.current);
        if (size === null)
            return;
        format.currentIndex = size.width < size.height ? 1 : 0;
        [across.realValue, down.realValue] = [size.width, size.height];
    }

    objectName: "NewProjectPage"
    title: qsTr("New project")
    onActiveChanged: {
        if (active)
            name.forceActiveFocus(Qt.TabFocusReason);
    }

    Sheet {
        maximumWidth: 100 * BGUI.Theme.unit

        BGUI.FormRow {
            label: qsTr("Name")

            BGUI.Input {
                id: name
                objectName: "projectName"
                width: parent.width
                placeholderText: qsTr("What the project is called")
                onTextEdited: error = ""
                onAccepted: root.create()
            }
        }

        BGUI.FormRow {
            label: qsTr("Begin with")

            TemplateChoice {
                id: template
                width: parent.width
                onChosen: root.showSize()
            }
        }

        BGUI.FormRow {
            label: qsTr("Screen")

            BGUI.RadioGroup {
                id: format
                width: parent.width
                enabled: template.current === ""
                currentIndex: 0
                model: [qsTr("Landscape"), qsTr("Portrait"), qsTr("Own size")]
                onActivated: {
                    if (index < 2)
                        [across.realValue, down.realValue] = index === 0 ? [1920, 1080] : [1080, 1920];
                }
            }
        }

        BGUI.FormRow {
            label: qsTr("Size")

            Row {
                spacing: BGUI.Theme.unit

                BGUI.SpinBox {
                    id: across
                    objectName: "screenWidth"
                    enabled: format.enabled && format.currentIndex === 2
                    realFrom: 1
                    realTo: 16384
                    realStep: 10
                    suffix: " px"
                    realValue: 1920
                }

                BGUI.SpinBox {
                    id: down
                    objectName: "screenHeight"
                    enabled: across.enabled
                    realFrom: 1
                    realTo: 16384
                    realStep: 10
                    suffix: " px"
                    realValue: 1080
                }
            }
        }

        Row {
            anchors.right: parent.right
            topPadding: BGUI.Theme.unit

            BGUI.Button {
                objectName: "createProject"
                type: "primary"
                faIcon: "fa-plus"
                text: qsTr("Create and edit")
                onClicked: root.create()
            }
        }
    }
}
