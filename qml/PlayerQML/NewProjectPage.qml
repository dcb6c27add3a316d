// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "private"

/// Makes a project: its name and the size of its screen. It opens in the editor.
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
        if (!CAPI.createProject(projectName) || !begin()) {
            name.error = qsTr("The project cannot be made in %1. Is the disk full?").arg(CAPI.getWorkDirectory());
            return;
        }
        CAPI.setSetting("lastProject", projectName);
        const stack = shell;
        stack.pop({ item: null, immediate: true });
        stack.edit();
    }

    // Writes the first document and lists it. False when that failed.
    function begin() {
        CAPI.setBaseFolder(projectName);
        const document = "import QtQuick 2.15\nimport Nuvex.Components 1.0\n\nRectangle {\n    width: %1\n"
                         + "    height: %2\n    color: \"#ffffff\"\n}\n";
        return CAPI.writeToFile(document.arg(across.value).arg(down.value), "main.qml")
            && CAPI.updateDirmapFile({ "main.qml": 1 });
    }

    objectName: "NewProjectPage"
    title: qsTr("New project")
    onActiveChanged: {
        if (active)
            name.forceActiveFocus(Qt.TabFocusReason);
    }

    Sheet {
        maximumWidth: 72 * BGUI.Theme.unit

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
            label: qsTr("Screen")

            BGUI.RadioGroup {
                id: format
                width: parent.width
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
                    enabled: format.currentIndex === 2
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
