<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serien-
aufnahme</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Standbild</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Keine Kamera gefunden.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Kein Mikrofon gefunden.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Keine Kamera und kein Mikrofon gefunden.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Die Kamera ist nicht verfügbar. Bitte prüfen Sie, ob sie richtig angeschlossen ist. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Speichern fehlgeschlagen.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Dateien werden geladen. Bitte warten...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Die Dateien wurden geladen.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Laden fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Ordner laden</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Zeigt dies bis zur nächsten Taste oder Berührung</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Zur nächsten Schaltfläche</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Zurück zur vorigen Schaltfläche</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Drückt die Schaltfläche</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>In der Liste von einem zum nächsten</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Wählt in der Liste aus oder wieder ab</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Livebild größer, kleiner</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Das ganze Livebild</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Dreht das Livebild um ein Viertel</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Größer oder kleiner, um den Zeiger herum</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Zwei Finger</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Größer oder kleiner, zwischen den Fingern</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Verschiebt das vergrößerte Livebild</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopiert, was zu sehen ist</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Zurück aus einer Frage oder Meldung</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Leertaste</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Die Kamera wird geöffnet. Bitte warten...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera und Mikrofon sind nicht verfügbar. Bitte prüfen Sie, ob sie richtig angeschlossen sind. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Die Kamera ist nicht verfügbar. Bitte prüfen Sie, ob sie richtig angeschlossen ist. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Das Mikrofon ist nicht verfügbar. Bitte prüfen Sie, ob es richtig angeschlossen ist.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 Sekunden bis zur Aufnahme  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> Sekunden bis zur Aufnahme</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Bitte ein Gerät wählen:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CWaiteMsgDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Bitte warten..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Wird eingefügt. Bitte warten... 
</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>Sollen die Fotos und Filme gespeichert werden?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Selbstauslöser:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serienaufnahme:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Aufgenommenes Bild bestätigen:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Speicherort:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Standardordner verwenden</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Anderen Ordner verwenden</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Selbstauslöser</translation>
    </message>
    <message>
        <source>second</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serienaufnahme</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Aufgenommenes Bild bestätigen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Standardordner verwenden</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Anderen Ordner verwenden</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Bitte einen Speicherort angeben.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Der angegebene Pfad ist ungültig.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Speicherort</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Es können höchstens 9 gewählt werden.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>WebcamUtil</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Auf dem Datenträger ist zu wenig Platz.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Die Aufnahme wird beendet. Bitte Platz schaffen. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Es kann nichts aufgenommen werden, solange dieser Ordner ein Verweis ist oder nicht Ihnen allein gehört:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Dokumentenkamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Zeigen, fotografieren und filmen, was unter der Kamera liegt</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Der Ordner wurde nicht gefunden.
Bitte prüfen Sie, ob der Name stimmt.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
