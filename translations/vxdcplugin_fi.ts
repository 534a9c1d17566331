<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
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
        <translation>Kuva</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sarja-
kuvaus</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Pysäytä</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Luettelo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Lopeta</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Säilytä</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ota uusi</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Toista</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tauko</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Näytä</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Kuva</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Kuva /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Liitä</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Lataa</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Pysäytyskuva</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kameraa ei löydy.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofonia ei löydy.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kameraa ja mikrofonia ei löydy.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ei ole käytettävissä. Tarkista, että se on liitetty oikein. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Tallennus epäonnistui.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Tiedostoja ladataan. Odota...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Tiedostot on ladattu.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Lataus epäonnistui.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Lataa kansio</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Näppäimet</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Näyttää tämän seuraavaan painallukseen asti</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Seuraavaan painikkeeseen</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Takaisin edelliseen painikkeeseen</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Painaa painiketta</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Luettelossa yhdestä seuraavaan</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Valitsee luettelosta tai poistaa valinnan</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Suora kuva suuremmaksi, pienemmäksi</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Koko suora kuva</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Kääntää suoraa kuvaa neljänneskierroksen</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Hiiren rulla</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Suuremmaksi tai pienemmäksi osoittimen ympäriltä</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Kaksi sormea</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Suuremmaksi tai pienemmäksi sormien välistä</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Vetäminen</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Siirtää suurennettua suoraa kuvaa</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopioi sen, mitä näkyy</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Takaisin kysymyksestä tai viestistä</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Lopettaa ohjelman</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Välilyönti</translation>
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
        <translation>Kameraa avataan. Odota...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Ei tuettu</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ja mikrofoni eivät ole käytettävissä. Tarkista, että ne on liitetty oikein. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ei ole käytettävissä. Tarkista, että se on liitetty oikein. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofoni ei ole käytettävissä. Tarkista, että se on liitetty oikein.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Suora kuva</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s kuvan ottamiseen  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s kuvan ottamiseen</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Tallennus käynnissä</translation>
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
        <translation>Valitse laite:</translation>
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
        <translation>Odota..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Valmis</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Epäonnistui.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Liitetään. Odota... 
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
        <translation>Tallennetaanko kuvat ja videot?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Kyllä</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Itselaukaisin:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekuntia</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sarjakuvaus:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>kuvaa</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Vahvista otettu kuva:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Tarkkuus:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Tallennuspaikka:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Käytä oletuskansiota</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Käytä toista kansiota</translation>
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
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Itselaukaisin</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekuntia</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sarjakuvaus</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>kuvaa</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Vahvista otettu kuva</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Tarkkuus</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Käytä oletuskansiota</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Käytä toista kansiota</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Anna tallennuspaikka.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Annettu polku ei kelpaa.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Tallennuspaikka</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Voit valita enintään 9.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Kuva</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Kuva</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Suurenna</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Takaisin</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
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
        <translation>Levytila ei riitä.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Kuvaus keskeytetään. Vapauta levytilaa. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Mitään ei voi tallentaa niin kauan kuin tämä kansio on linkki tai ei ole yksin sinun:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Dokumenttikamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Näytä, kuvaa ja videoi se, mitä kameran alla on</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Hae kansiosta:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Kansio:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Valitse</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Eteenpäin</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Yläkansio</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Luo uusi kansio</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Kansiota ei löydy.
Tarkista, että kansion nimi on oikein.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Tietokone</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
