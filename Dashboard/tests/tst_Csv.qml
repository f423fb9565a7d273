import QtQuick
import Dashboard

Item {
    DashboardCase {
        name: "Csv"

        function test_fields_data() {
            return [
                { "tag": "plain", "value": "Lobby NVR", "field": "Lobby NVR" },
                { "tag": "empty", "value": "", "field": "" },
                { "tag": "missing", "value": undefined, "field": "" },
                { "tag": "number", "value": 12, "field": "12" },
                { "tag": "comma", "value": "Gate B, plates", "field": "\"Gate B, plates\"" },
                { "tag": "quotes", "value": "the \"old\" gate",
                  "field": "\"the \"\"old\"\" gate\"" },
                { "tag": "line end", "value": "a\nb", "field": "\"a\nb\"" },
                { "tag": "carriage return", "value": "a\rb", "field": "\"a\rb\"" },
                { "tag": "letters of other scripts", "value": "Süd 門", "field": "Süd 門" },
                { "tag": "formula", "value": "=1+1", "field": "'=1+1" },
                { "tag": "formula with quotes", "value": "=HYPERLINK(\"http://x\",\"y\")",
                  "field": "\"'=HYPERLINK(\"\"http://x\"\",\"\"y\"\")\"" },
                { "tag": "plus", "value": "+1", "field": "'+1" },
                { "tag": "minus", "value": "-1", "field": "'-1" },
                { "tag": "at", "value": "@SUM(A1)", "field": "'@SUM(A1)" },
                { "tag": "tab", "value": "\t=1", "field": "'\t=1" },
                { "tag": "wide equals sign", "value": "＝1", "field": "'＝1" },
                { "tag": "sign inside", "value": "a=b", "field": "a=b" }
            ];
        }

        function test_fields(data) {
            compare(Csv.document([[data.value]]), data.field + "\r\n");
        }

        function test_recordsEndWithTheirLines() {
            compare(Csv.document([["a", "b"], ["1", "2"]]), "a,b\r\n1,2\r\n");
            compare(Csv.document([]), "");
        }
    }
}
