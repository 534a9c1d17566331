<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Diretta</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Scatto
continuo</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Conserva</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Rifai</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Fermo immagine</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nessuna videocamera trovata.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nessun microfono trovato.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nessuna videocamera e nessun microfono trovati.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La videocamera non è disponibile. Verificare che sia collegata correttamente. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Salvataggio non riuscito.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Caricamento dei file in corso. Attendere...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>I file sono stati caricati.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Caricamento non riuscito.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Carica cartella</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Mostra questo fino al prossimo tasto o tocco</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Al pulsante successivo</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Al pulsante precedente</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Preme il pulsante</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Dall'uno all'altro nell'elenco</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Sceglie nell'elenco, o toglie la scelta</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Immagine dal vivo più grande, più piccola</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>L'immagine dal vivo intera</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Gira l'immagine dal vivo di un quarto</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Rotellina del mouse</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Più grande o più piccola, attorno al puntatore</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Due dita</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Più grande o più piccola, tra le dita</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Trascinare</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Sposta l'immagine dal vivo ingrandita</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Copia ciò che si vede</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Torna indietro da una domanda o da un messaggio</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Chiude il programma</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Barra spaziatrice</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>DIRETTA</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Apertura della videocamera in corso. Attendere...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Non supportato</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La videocamera e il microfono non sono disponibili. Verificare che siano collegati correttamente. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La videocamera non è disponibile. Verificare che sia collegata correttamente. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Il microfono non è disponibile. Verificare che sia collegato correttamente.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Immagine dal vivo</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s allo scatto  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s allo scatto</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione in corso</translation>
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
        <translation>Scegliere un dispositivo:</translation>
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
        <translation>Attendere..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Non riuscito.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Inserimento in corso. Attendere... 
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
        <translation>Salvare le foto e i video?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Autoscatto:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Scatto continuo:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>immagini</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Conferma l’immagine scattata:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Risoluzione:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Cartella di salvataggio:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Usa la cartella predefinita</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Usa un’altra cartella</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Autoscatto</translation>
    </message>
    <message>
        <source>second</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Scatto continuo</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>immagini</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Conferma l’immagine scattata</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Usa la cartella predefinita</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Usa un’altra cartella</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Specificare la cartella di salvataggio.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Il percorso specificato non è valido.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Cartella di salvataggio</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>È possibile selezionare al massimo 9 elementi.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
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
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Indietro</translation>
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
        <translation>Lo spazio su disco è insufficiente.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>La ripresa viene interrotta. Liberare spazio. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Non è possibile acquisire nulla finché questa cartella è un collegamento o non è solo sua:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Visualizzatore</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Mostrare, fotografare e filmare ciò che si trova sotto la videocamera</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Cerca in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Cartella:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crea nuova cartella</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Cartella non trovata.
Verificare che il nome della cartella sia corretto.</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
