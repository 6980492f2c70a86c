import QtQuick
import Pelko

Window {
    required property MainViewModel main
    required property LaunchSequence launch

    width: 1100
    height: 750
    visible: true
    color: FirePalette.deepBackground
}
