<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Directo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Captura
continua</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Vídeo /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Vídeo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Imagen fija</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>No se encuentra ninguna cámara.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>No se encuentra ningún micrófono.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>No se encuentra ninguna cámara ni micrófono.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La cámara no está disponible. Compruebe que está bien conectada. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>No se ha podido guardar.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Cargando archivos. Espere...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Los archivos se han cargado.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>No se ha podido cargar.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Cargar carpeta</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Muestra esto hasta la siguiente tecla o toque</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Al botón siguiente</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Al botón anterior</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Pulsa el botón</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>De uno a otro en la lista</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Elige en la lista o deja de elegir</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Imagen en directo más grande, más pequeña</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>La imagen en directo entera</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Gira la imagen en directo un cuarto de vuelta</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Rueda del ratón</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Más grande o más pequeña, en torno al puntero</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Dos dedos</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Más grande o más pequeña, entre los dedos</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Arrastrar</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Mueve la imagen en directo ampliada</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Copia lo que se ve</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Vuelve de una pregunta o un mensaje</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Cierra el programa</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Barra espaciadora</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>EN DIRECTO</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Abriendo la cámara. Espere...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>No compatible</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La cámara y el micrófono no están disponibles. Compruebe que están bien conectados. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La cámara no está disponible. Compruebe que está bien conectada. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>El micrófono no está disponible. Compruebe que está bien conectado.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Imagen en directo</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 segundos para la captura  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> segundos para la captura</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabando</translation>
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
        <translation>Seleccione un dispositivo:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Espere..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Error.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Pegando. Espere... 
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
        <translation>¿Desea guardar las fotos y los vídeos?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Temporizador:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Captura continua:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>imágenes</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmar la imagen capturada:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolución:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Carpeta de destino:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Usar la carpeta predeterminada</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Usar otra carpeta</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>second</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Captura continua</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>imágenes</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmar la imagen capturada</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Usar la carpeta predeterminada</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Usar otra carpeta</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Indique dónde guardar.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>La ruta indicada no es válida.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Carpeta de destino</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>No se pueden elegir más de 9.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
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
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Volver</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>No hay espacio suficiente en el disco.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Se interrumpe la captura. Libere espacio. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>No se puede capturar nada mientras esta carpeta sea un enlace o no sea solo suya:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Cámara de documentos</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Muestre, fotografíe y grabe lo que hay bajo la cámara</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear carpeta nueva</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se encuentra la carpeta.
Compruebe que el nombre de la carpeta es correcto.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
</TS>
