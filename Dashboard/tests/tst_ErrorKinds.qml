import QtQuick
import Dashboard

Item {
    DashboardCase {
        name: "ErrorKinds"

        function test_everyKindHasADrawingOfItsOwn() {
            const icons = [0, 1, 2, 3, 4, 5, 7].map(type => ErrorKinds.icon(type));
            compare(new Set(icons).size, icons.length);
            for (const icon of icons)
                verify(icon in Icons.paths, icon);
        }

        function test_unknownKindHasAQuestionMark_data() {
            return [{ "tag": "6", "type": 6 }, { "tag": "8", "type": 8 }, { "tag": "-1", "type": -1 }];
        }

        function test_unknownKindHasAQuestionMark(data) {
            compare(ErrorKinds.icon(data.type), "question");
            compare(ErrorKinds.severity(data.type), "warning");
        }

        function test_disconnectionsAreCritical() {
            compare([0, 1, 2, 3, 4, 5, 7].map(type => ErrorKinds.severity(type)),
                    ["warning", "warning", "warning", "critical", "critical", "critical",
                     "warning"]);
        }

        function test_onlyCamerasAndStationsCanBeSnoozed() {
            compare([0, 1, 2, 3, 4, 5, 6, 7].filter(type => ErrorKinds.canBeSnoozed(type)), [3, 4]);
        }

        function test_deviceNameLeavesOutTheStation_data() {
            return [
                { "tag": "camera", "type": 3, "category": 2, "device": "a/1",
                  "trigger": "Station: Lobby / Camera: Door 2", "station": "Lobby",
                  "name": "Door 2" },
                { "tag": "camera with marks of its own", "type": 3, "category": 2, "device": "a/1",
                  "trigger": "Station: Lobby / Camera: In / Out: 2", "station": "Lobby",
                  "name": "In / Out: 2" },
                { "tag": "station with a slash", "type": 3, "category": 2, "device": "a/1",
                  "trigger": "Station: East / West / Camera: Door", "station": "East / West",
                  "name": "Door" },
                { "tag": "camera of an unlisted station", "type": 3, "category": 2,
                  "device": "a/1", "trigger": "Station: Lobby / Camera: Door", "station": "st1",
                  "name": "Station: Lobby / Camera: Door" },
                { "tag": "camera that was down at the start", "type": 3, "category": 2,
                  "device": "a/1", "trigger": "Lobby - Door - left", "station": "Lobby",
                  "name": "Door - left" },
                { "tag": "station named like one", "type": 4, "category": 1, "device": "",
                  "trigger": "Lobby - east", "station": "Lobby", "name": "Lobby - east" },
                { "tag": "translated", "type": 3, "category": 2, "device": "a/1",
                  "trigger": "Station: Foyer / Kamera: Tür", "station": "Foyer", "name": "Tür" },
                { "tag": "station", "type": 4, "category": 1, "device": "",
                  "trigger": "Station: Lobby", "station": "Lobby", "name": "Lobby" },
                { "tag": "interface", "type": 2, "category": 1, "device": "eth1",
                  "trigger": "Station: Lobby", "station": "Lobby", "name": "eth1" },
                { "tag": "recording group", "type": 7, "category": 1, "device": "a",
                  "trigger": "Station: Lobby / Archive: Doors", "station": "Lobby",
                  "name": "Archive: Doors" },
                { "tag": "nameless station", "type": 4, "category": 1, "device": "",
                  "trigger": "Station: ", "station": "", "name": "" }
            ];
        }

        function test_deviceNameLeavesOutTheStation(data) {
            compare(ErrorKinds.deviceName(data.type, data.category, data.device, data.trigger,
                                          data.station), data.name);
        }
    }
}
