<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
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
        <translation>Serie-
tagning</translation>
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
        <translation>Lista</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behåll</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ta om</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spela upp</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visa</translation>
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
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Läs in</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillbild</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Ingen kamera hittades.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Ingen mikrofon hittades.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Varken kamera eller mikrofon hittades.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameran är inte tillgänglig. Kontrollera att den är rätt ansluten. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Det gick inte att spara.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Filer läses in. Vänta...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Filerna har lästs in.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Det gick inte att läsa in.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Läs in mapp</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Tangenter</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Visar detta till nästa tangent eller beröring</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Till nästa knapp</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Tillbaka till förra knappen</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Trycker på knappen</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Från den ena till nästa i listan</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Väljer i listan, eller väljer bort igen</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Livebild större, mindre</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Hela livebilden</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Vrider livebilden ett kvarts varv</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Mushjul</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Större eller mindre, kring pekaren</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Två fingrar</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Större eller mindre, mellan fingrarna</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Dra</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Flyttar den förstorade livebilden</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Kopierar det som visas</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Tillbaka från en fråga eller ett meddelande</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Avslutar programmet</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Blanksteg</translation>
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
        <translation>Kameran öppnas. Vänta...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Stöds inte</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameran och mikrofonen är inte tillgängliga. Kontrollera att de är rätt anslutna. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameran är inte tillgänglig. Kontrollera att den är rätt ansluten. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofonen är inte tillgänglig. Kontrollera att den är rätt ansluten.</translation>
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
        <translation>0 s kvar till bilden  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s kvar till bilden</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Spelar in</translation>
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
        <translation>Välj en enhet:</translation>
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
        <translation>Vänta..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Klart</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Misslyckades.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Klistrar in. Vänta... 
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
        <translation>Vill du spara bilderna och filmerna?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Självutlösare:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serietagning:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>bilder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Bekräfta tagen bild:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Upplösning:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Lagringsplats:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Använd standardmappen</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Använd en annan mapp</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Självutlösare</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serietagning</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>bilder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Bekräfta tagen bild</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Upplösning</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Använd standardmappen</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Använd en annan mapp</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Ange en lagringsplats.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Den angivna sökvägen är ogiltig.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Lagringsplats</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Du kan välja högst 9.</translation>
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
        <translation>Förstora</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Tillbaka</translation>
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
        <translation>Det finns för lite diskutrymme.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Fotograferingen avbryts. Frigör utrymme. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Inget kan tas så länge den här mappen är en länk eller inte bara är din:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Dokumentkamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Visa, fotografera och filma det som ligger under kameran</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Leta i:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Mapp:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Bakåt</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Överordnad mapp</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Skapa ny mapp</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Mappen hittades inte.
Kontrollera att mappens namn är rätt.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
