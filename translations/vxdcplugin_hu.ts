<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Élő kép</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotó</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sorozat-
felvétel</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Videó</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Megtartás</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lejátszás</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szünet</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Megtekintés</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Videó /
    Fotó</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Fotó /
    Videó</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Beillesztés</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Betöltés</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Állókép</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nem található kamera.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nem található mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nem található sem kamera, sem mikrofon.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A kamera nem érhető el. Ellenőrizze, hogy megfelelően csatlakozik-e. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>A mentés nem sikerült.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Fájlok betöltése. Kérem, várjon...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>A fájlok betöltése kész.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>A betöltés nem sikerült.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Mappa betöltése</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Billentyűk</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Ezt mutatja a következő billentyűig vagy érintésig</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>A következő gombra</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Vissza az előző gombra</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Megnyomja a gombot</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>A listában egyikről a másikra</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Kiválaszt a listában, vagy mégsem</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Élő kép nagyobb, kisebb</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>A teljes élő kép</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Negyed fordulattal elforgatja az élő képet</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Egérgörgő</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Nagyobb vagy kisebb, a mutató körül</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Két ujj</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Nagyobb vagy kisebb, az ujjak között</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Húzás</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Mozgatja a felnagyított élő képet</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Másolja, ami látható</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Vissza kérdésből vagy üzenetből</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Bezárja a programot</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Szóköz</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>ÉLŐ KÉP</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>A kamera megnyitása. Kérem, várjon...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nem támogatott</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A kamera és a mikrofon nem érhető el. Ellenőrizze, hogy megfelelően csatlakoznak-e. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A kamera nem érhető el. Ellenőrizze, hogy megfelelően csatlakozik-e. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>A mikrofon nem érhető el. Ellenőrizze, hogy megfelelően csatlakozik-e.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Élő kép</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 másodperc a felvételig  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> másodperc a felvételig</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Felvétel folyamatban</translation>
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
        <translation>Válasszon eszközt:</translation>
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
        <translation>Kérem, várjon..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Nem sikerült.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Beillesztés. Kérem, várjon... 
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
        <translation>Menti a fotókat és a videókat?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Önkioldó:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>másodperc</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sorozatfelvétel:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>kép</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Az elkészült kép jóváhagyása:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Felbontás:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Mentés helye:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Alapértelmezett mappa használata</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Másik mappa használata</translation>
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
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Önkioldó</translation>
    </message>
    <message>
        <source>second</source>
        <translation>másodperc</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sorozatfelvétel</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>kép</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Az elkészült kép jóváhagyása</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Felbontás</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Alapértelmezett mappa használata</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Másik mappa használata</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Adja meg a mentés helyét.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>A megadott útvonal érvénytelen.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Mentés helye</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Legfeljebb 9 választható ki.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotó</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Videó</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Fotó</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Nagyítás</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Vissza</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Videó</translation>
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
        <translation>Nincs elég szabad hely a lemezen.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>A felvétel leáll. Szabadítson fel helyet. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Nem készíthető felvétel, amíg ez a mappa hivatkozás, vagy nem csak az Öné:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Dokumentumkamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>A kamera alatt lévők megmutatása, fényképezése és filmezése</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Keresés itt:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mappa:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Választás</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Előre</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Szülőmappa</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Új mappa</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
A mappa nem található.
Ellenőrizze, hogy jól adta-e meg a mappa nevét.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Számítógép</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
