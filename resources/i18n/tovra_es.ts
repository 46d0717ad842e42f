<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>Introduce la cuenta y la contraseña.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>No se pudo completar la acción de la cuenta</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>Recordar esta cuenta</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Usa tu cuenta de Tovra para conectarte y sincronizar las ubicaciones disponibles.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>Correo electrónico o ID de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>Crear cuenta</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>¿Has olvidado la contraseña?</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>Iniciando sesión...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>Renovar</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Sesión iniciada</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>ID de usuario: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Plan: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Días restantes: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>Máximo de dispositivos simultáneos: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>Cerrando sesión...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>Abriendo…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>Cambiar…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Inicia Tovra en la bandeja del sistema al iniciar sesión en el escritorio.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>Mostrar la ventana al iniciar</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Abre esta ventana al iniciarse Tovra; si no, solo aparece el icono de la bandeja.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>Igual que el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>Claro, oscuro o según el escritorio.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Cambiar idioma</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1, según el escritorio</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>No se pudo actualizar el inicio automático</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>Mostrar…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>Mostrar los atajos de teclado</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>Todas las teclas que funcionan en esta ventana.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>Ubicación %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>Otras ubicaciones</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>ubicaciones: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>latencia sin medir</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favorito</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>conectado</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>fuera de tu plan</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>Tu plan no incluye esta ubicación. Mejora tu plan para usarla.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>Puede que esta lista no esté actualizada.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>Bloqueada: requiere el plan %1. Mejora tu plan para usarla.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>URL de la API</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Última ubicación</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>Ubicación más rápida</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>Conexión automática</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>A qué se conecta el servicio de Tovra cuando se inicia.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>Guardar la URL de la API</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>Restablecer la URL de la API predeterminada</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Dirección con la que el servicio de Tovra accede a los servidores de cuentas y ubicaciones. Cámbiala solo si te lo pide el soporte técnico.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>Validación: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Validada por el servicio de Tovra</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>Sin validar: el servicio de Tovra guardó esta dirección, pero no pudo confirmarla</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>África</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antártida</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asia</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europa</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>Oriente Medio</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>América del Norte</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Oceanía</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>América del Sur</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>El servicio de Tovra no está en ejecución.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Acceso denegado al servicio de Tovra. Añade este usuario al grupo tovracli, cierra la sesión y vuelve a iniciarla.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>No se pudo conectar con el servicio de Tovra.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>El servicio de Tovra es demasiado antiguo para los modos de Kill Switch. Actualiza Tovra.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>Afganistán</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Islas Äland</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albania</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Algeria</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Samoa Estadounidense</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Andorra</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Angola</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Anguila</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Antigua y Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Argentina</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Armenia</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australia</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Austria</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Azerbaiyán</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Baréin</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladés</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Bielorrusia</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Bélgica</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belice</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Benín</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Islas Bermudas</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Bután</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Bolivia</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bosnia y Herzegovina</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botsuana</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasil</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunei Darussalam</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgaria</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burquina Faso</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Camboya</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Camerún</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canadá</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Cabo Verde</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Islas Caimán</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>República Centroafricana</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Chad</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Chile</translation>
    </message>
    <message>
        <source>China</source>
        <translation>China</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Colombia</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Comores, Islas</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Congo</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Congo, República Democrática del</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Islas Cook</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Costa Rica</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Costa de Marfíl</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Croacia</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Cuba</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Chipre</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Chequia</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dinamarca</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Yibuti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Dominica</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>República Dominicana</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Ecuador</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Egipto</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Guinea Ecuatorial</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Eritrea</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estonia</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Etiopía</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Islas Falkland (Malvinas)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Islas Feroe</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fiyi</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlandia</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Francia</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Guayana Francesa</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Polinesia Francesa</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabón</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gambia</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Georgia</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Alemania</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Ghana</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Gibraltar</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Grecia</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Groenlandia</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Granada</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Guadalupe</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Guatemala</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Guernsey</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Guinea</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Guinea-Bisáu</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guyana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haití</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Santa Sede (Ciudad Estado del Vaticano)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Hungría</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Islandia</translation>
    </message>
    <message>
        <source>India</source>
        <translation>India</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Indonesia</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Irán, República islámica de</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Irak</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlanda</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Isla de Man</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Israel</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Italia</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaica</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japón</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Jordania</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Kazajistán</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Kenia</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Corea, República Democrática Popular de</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Corea, República de</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Kirguistán</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>República Democrática Popular de Lao</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Letonia</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Líbano</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesoto</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Liberia</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Libia</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Lituania</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxemburgo</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Macao</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Macedonia del Norte</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagascar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malaui</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malasia</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Islas Maldivas</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Malí</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malta</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Islas Marshall</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinica</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Mauritania</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Mauricio</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Mayotte</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>México</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Micronesia, Estados Federados de</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldavia</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Mónaco</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongolia</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Montenegro</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Marruecos</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Mozambique</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Birmania</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namibia</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Nepal</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Países Bajos</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Nueva Caledonia</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nueva Zelanda</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Nicaragua</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Niger</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nigeria</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Isla Norfolk</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Islas Marianas del Norte</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Noruega</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Omán</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Pakistán</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palaos</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Palestina, Estado de</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panamá</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papúa Nueva Guinea</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguay</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Perú</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Filipinas</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polonia</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Puerto Rico</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Catar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Reunión</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumanía</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Federación Rusa</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Ruanda</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Santa Elena, Ascensión y Tristán de Acuña</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>San Cristóbal y Nieves</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Santa Lucía</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>San Pedro y Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>San Vicente y las Granadinas</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>San Marino</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>Santo Tomé y Príncipe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Arabia Saudí</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Serbia</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seychelles</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Sierra Leona</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Eslovaquia</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Eslovenia</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Islas Salomón</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somalia</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Sudáfrica</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Sudán del Sur</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>España</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudán</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Surinám</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Esuatini</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suecia</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suiza</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>República árabe de Siria</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Taiwán</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tayikistán</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tanzania</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Tailandia</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor Oriental</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Tokelau</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Trinidad y Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunez</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Turquía</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turkmenistán</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Islas Turcas y Caicos</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Uganda</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ucrania</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Emiratos Árabes Unidos</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Reino Unido</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Estados Unidos</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguay</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Uzbekistán</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Venezuela</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Vietnam</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Islas Vírgenes, Británicas</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Islas Vírgenes, de EEUU</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis y Futuna</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Sahara Occidental</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Yemen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Zambia</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Zimbabue</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: ninguna ubicación coincide con «%1»</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra está ocupado con otra conexión o inicio de sesión; inténtalo de nuevo cuando termine</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: inicia sesión en Tovra antes de conectarte</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: tu plan no incluye «%1»</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: la solicitud falló</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: indica solo una de estas opciones: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>no se pudo iniciar Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra no se inició</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>el Tovra en ejecución es una versión anterior: pasó al frente pero no atendió la solicitud; ciérralo e inténtalo de nuevo</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>el Tovra en ejecución no respondió</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>Datos de ejecución</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>Registros</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Archivo de estado</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>Clave de credenciales</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>Socket de control</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Archivo PID</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>Dirección de control</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>Abrir registros</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>Reparar la conexión</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>Restablece el Kill Switch, el proxy local y el túnel cuando el tráfico se queda atascado.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>La carpeta de registros del servicio de Tovra, para el soporte técnico.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>Copiar ruta: %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>Rutas del servicio</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Dónde guarda sus archivos el servicio de Tovra.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Versión del servicio de Tovra</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>Protocolo de control</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>Esta aplicación usa la versión 1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1, no compatible</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Borrar el texto</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>El inicio automático no es compatible con esta plataforma.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>No se pudo encontrar el ejecutable de Tovra para el inicio automático.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>No se pudo preparar la carpeta de inicio automático.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>No se pudo actualizar el inicio automático de Tovra.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>No se pudo proteger el inicio automático de Tovra.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>No se pudo quitar Tovra del inicio automático.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>Estas teclas funcionan en toda la ventana de Tovra. Tab pasa de un control a otro.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Bloqueo total</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Bloqueo total no disponible</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>El Kill Switch necesita un modo VPN</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>El Kill Switch no funciona con Tovra Proxy. Cambia a Automático (recomendado), TovraVPN o WireGuard para activarlo.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>Cambiar a Automático y activar</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Cambiar a Automático y activar el Kill Switch</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>Elegir modo…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Elige un modo para el Kill Switch</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy necesita el Kill Switch desactivado</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>El Kill Switch bloquea Tovra Proxy. Desactiva primero el Kill Switch en Configuración y después cambia de modo.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>Abrir Configuración</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Abrir Configuración para desactivar el Kill Switch</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>Bloquear el tráfico fuera del túnel</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Bloquea el tráfico fuera del túnel mientras Tovra está conectado o conectándose.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>Bloquea el tráfico fuera del túnel siempre que el Kill Switch esté activado, incluso sin conexión.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Bloqueo total</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Definido por el servicio de Tovra: el tráfico fuera del túnel sigue bloqueado y el Kill Switch no se puede desactivar aquí.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>Cuándo bloquea el tráfico el Kill Switch.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>Si las impresoras, las carpetas compartidas y otros dispositivos cercanos siguen accesibles mientras el tráfico está bloqueado.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>Modo del Kill Switch: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Ahora: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. El servicio de Tovra mantiene activado el Kill Switch; no se puede desactivar aquí.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy está en uso: el Kill Switch necesita un modo VPN.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Accesible</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Bloqueada</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Usar el idioma del sistema</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>Usar el idioma del sistema (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>Seguir el idioma del escritorio</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Elige un idioma</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra se reiniciará para mostrar el nuevo idioma.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Buscar idiomas</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>Usar idioma</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>El servicio de Tovra no está disponible.
Las ubicaciones aparecerán aquí en cuanto responda.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>Cargando ubicaciones...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>El servicio no ofrece ninguna ubicación por ahora.
Prueba con Actualizar dentro de un momento.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>Aún no hay favoritos.
Marca una ubicación con la estrella (o selecciónala y pulsa Espacio) para tenerla aquí.</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>No hay ubicaciones en esta pestaña.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>Nada coincide con «%1».
Prueba con un país, una ciudad o un código como «de».</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>No se pudieron cargar las ubicaciones: %1
Pulsa Actualizar para volver a intentarlo.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>Selecciona una ubicación de la lista para marcarla con la estrella</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>Quitar %1 de favoritos</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>Añadir %1 a favoritos</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>Todas las ubicaciones</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>Haz doble clic en una ubicación para conectarte a ella, o en un país o una ciudad para conectarte a su ubicación más rápida.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>Buscar países, ciudades, ubicaciones o P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Buscar ubicaciones</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>Ninguna de las ubicaciones de %1 está incluida en tu plan.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>Tu plan no incluye %1. Mejora tu plan para usar esta ubicación.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>Acciones de ubicación</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>Conectarse a la ubicación más rápida</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Contraer</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Añadir a favoritos</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>Coincidencias en todas las pestañas: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>Ubicaciones: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>Midiendo la latencia...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>Puede que esta lista no esté actualizada; Actualizar descarga una nueva.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>Agrupando por región hasta que lleguen los grupos del servicio.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>Pestañas de ubicaciones</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>Ordenar ubicaciones</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>Orden del servicio</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latencia</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>Orden de las ubicaciones dentro de cada grupo</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>Volver a obtener la lista de ubicaciones y medir su latencia</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>Actualizar (%1 s)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>Actualizar ubicaciones; disponible de nuevo en %1 s</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Actualizar ubicaciones</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>No se pudo completar la acción</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>No se pudo cambiar la configuración</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>No se pudo cambiar el modo</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>Tovra elige el protocolo que mejor funciona aquí.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>Un túnel rápido y moderno para todo tu tráfico.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>Todo el tráfico pasa por el túnel de TovraVPN.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>El túnel de forma predeterminada; las regiones y los sitios elegidos van directos.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>Sin túnel: las aplicaciones que usan el proxy local acceden a Internet a través de Tovra.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>El proxy local, con las regiones y los sitios elegidos yendo directos.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Aplicando…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>El Kill Switch necesita un modo VPN: elige Automático, WireGuard o TovraVPN para activarlo.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Elige un modo</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>El modo actual se mostrará cuando responda el servicio de Tovra.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>Modo actual: %1. Esta versión de Tovra no lo reconoce; elige uno de los modos de arriba para sustituirlo.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN dividido</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN Global</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy dividido</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy Global</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>Modo de enrutamiento</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>Elige cómo se enruta tu tráfico y qué sitios evitan el túnel.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Proxy del sistema</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>Directa</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>Las impresoras, las carpetas compartidas y otros dispositivos de tu red siguen accesibles</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>El tráfico de la red local se protege igual que el resto</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>No se modifica la configuración de proxy del escritorio</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>La configuración de proxy del escritorio apunta a Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>La configuración de proxy del escritorio apunta a Tovra y se mantiene así</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Si los dispositivos de tu red local siguen accesibles mientras Tovra enruta tu tráfico.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>Haz que la configuración de proxy del escritorio apunte a Tovra, o impide además que otros programas la cambien.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>Escucha SOCKS5</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>Escucha HTTP</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>Aplicar direcciones</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>Servidores DNS locales</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>Por ejemplo, 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>Guardar servidores</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>Borrar servidores</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>Restablecer el DNS dividido</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>Activado y bloqueado</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Proxy del sistema</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>Hace que la configuración de proxy del escritorio apunte a Tovra; «bloqueado» impide que otros programas la cambien.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>Directa</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>«Directa» accede a los dispositivos cercanos fuera del túnel; «protegida» lo envía todo a través de él.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>Escuchas del proxy local</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Direcciones en las que el servicio acepta conexiones de proxy, como host:puerto. Deja un campo vacío para cerrar esa escucha.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>DNS local</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>DNS remoto</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>DNS dividido</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>Qué resolutor responde a los nombres que quedan fuera del túnel.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>Direcciones IP de los resolutores para nombres locales, separadas por comas.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>En uso: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>En uso: %1, servidores %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(de %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(de la configuración del sistema)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(de tu lista)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>Descartar notificación</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Notificación: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Reglas de división personalizadas sin cambios</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>Busca un país, una ciudad o una ubicación</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>Búsqueda de conexión rápida</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>Búsquedas recientes</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Ubicaciones recientes</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>Escribe el nombre de un país, una ciudad o una ubicación</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>Ninguna ubicación coincide con «%1»</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>Resultados de la búsqueda</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>Los cambios se aplican cuando el servicio de Tovra los confirma.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Podrás volver a cambiar la configuración cuando responda el servicio de Tovra.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>Esperando al servicio de Tovra...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>Añade un puerto: host:puerto, por ejemplo 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>«%1» no es una dirección IPv6.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>Escribe la dirección IPv6 entre corchetes: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>Añade un host antes del puerto: host:puerto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>«%1» no es un nombre de host ni una dirección IP.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>Añade un puerto después de los dos puntos: host:puerto.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>El puerto debe ser un número entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>Introduce una URL de la API o restablece la predeterminada.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>La URL de la API debe empezar por http:// o https://.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>La URL de la API necesita un host, por ejemplo https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>Introduce al menos un servidor DNS o vacía la lista.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>«%1» no es una dirección IP.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>Elige TovraVPN dividido o Tovra Proxy dividido para enviar parte del tráfico directo: por región, mediante la GFWList o con tus propias reglas.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Ruta predeterminada</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>Directa</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>Todo lo que no se elija abajo va directo</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Elegir regiones</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regiones</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Reglas de división personalizadas</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>Editar reglas…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>Editar las reglas de división personalizadas</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>Enrutamiento dividido</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>Opciones de TovraVPN dividido</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Opciones de Tovra Proxy dividido</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Túnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>Todo lo que no se elija abajo pasa por el túnel</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>Todo lo que no se elija abajo pasa por el proxy</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>El tráfico va directo salvo que una región, la GFWList o una regla indiquen lo contrario.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>El tráfico pasa por el túnel salvo que una región o una regla lo envíen directo.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>El tráfico pasa por el proxy salvo que una región o una regla lo envíen directo.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>No se ha elegido ninguna región.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>Directo: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>A través del túnel: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>A través del proxy: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → Túnel</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → Proxy</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>Los sitios de la GFWList siempre pasan por el túnel.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>Los sitios de la GFWList siempre pasan por el proxy.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>Tus propias listas de dominios y direcciones.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>Tus propias listas de dominios y direcciones. Reglas guardadas: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>No se pudo iniciar sesión</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>No se pudo cerrar la sesión</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>No se pudo cargar la cuenta</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>No se pudo abrir la página de renovación</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Actualizando las ubicaciones...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Ya hay una actualización de ubicaciones en curso</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>No se pudo actualizar el favorito</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>No se pudieron actualizar las ubicaciones</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>No se pudieron actualizar los grupos de ubicaciones</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Ubicaciones actualizadas</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>No se pudo conectar a esta ubicación</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>No se pudo conectar</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>No se pudo desconectar</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>No se pudo cambiar el idioma</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Reiniciando Tovra para aplicar el idioma de la interfaz.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>No se pudo reiniciar Tovra. Reinicia la aplicación manualmente.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>No se pudo cambiar de modo</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>No se pudo actualizar la red local</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>No se pudo actualizar el proxy del sistema</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Espera a que termine la operación en curso</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Elige un modo VPN para activar el Kill Switch</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>No se pudo actualizar el Kill Switch</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Reglas de división personalizadas actualizadas, pero no se pudieron volver a cargar</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>No se pudieron cargar las reglas de división</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>No se pudieron importar las reglas de división</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Reglas de división personalizadas actualizadas (%n regla)</numerusform>
            <numerusform>Reglas de división personalizadas actualizadas (%n reglas)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>No se pudieron cargar las rutas de configuración</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>No se pudo actualizar la URL de la API</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>URL de la API restablecida al valor predeterminado</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>URL de la API validada y guardada</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>URL de la API guardada, pero sin validar</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>No se pudo actualizar la conexión automática</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>No se pudo actualizar la dirección de escucha del proxy</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Dirección de escucha del proxy guardada para la próxima conexión</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Dirección de escucha del proxy actualizada</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>No se pudo actualizar el DNS dividido</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>DNS dividido actualizado</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Error en la reparación</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Reparación completada</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Comprobando la compatibilidad del servicio de Tovra...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>La interfaz de Tovra y su servicio no son compatibles. Actualiza Tovra antes de continuar.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>No se pudo cargar la versión</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>La versión de la interfaz no está disponible</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>No se pudo buscar actualizaciones</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra está actualizado</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>Se está comprobando una actualización obligatoria de Tovra antes de conectar.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>Terminando la última búsqueda de actualizaciones antes de iniciar la descarga...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>La información de la actualización no está disponible. Vuelve a buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>No se pudo confirmar que la descarga haya empezado. Comprobando su estado...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>No se pudo iniciar la descarga de la actualización</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>No se pudo confirmar la cancelación. Reintentando...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>No se pudo leer el progreso de la descarga. Reintentando...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>La descarga terminó antes de poder cancelarla. No se abrió el instalador.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>La actualización se descargó, pero no se pudo abrir el instalador.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>La descarga corresponde a otra versión de la actualización. Vuelve a buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>No se pudo cargar el Kill Switch</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>No se pudo cargar la URL de la API</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>No se pudo cargar el DNS dividido</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>No se pudo contactar con el servicio de Tovra</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>No se pudieron cargar los idiomas</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Buscando actualizaciones...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 está disponible</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>Hay que instalar una actualización obligatoria de Tovra antes de conectar.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>El servicio Tovra no está disponible</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>El servicio Tovra no respondió</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>Hay que instalar una actualización obligatoria de Tovra antes de conectarte</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>Otra solicitud de conexión reemplazó a esta</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Elegir regiones</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Buscar países</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Países</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>El tráfico hacia las regiones que marques va directo, fuera del túnel. Todo lo demás pasa por el túnel.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>El tráfico hacia las regiones que marques va directo, sin pasar por el proxy. Todo lo demás pasa por el proxy.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>El tráfico hacia las regiones que marques pasa por el túnel. Todo lo demás va directo.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>El tráfico hacia las regiones que marques pasa por el proxy. Todo lo demás va directo.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>Marcadas: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>Ningún país coincide con «%1».</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>Lista de reglas</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Reglas de división personalizadas</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>Un dominio, una dirección IP o un rango CIDR por línea, como example.org, 203.0.113.7 o 10.0.0.0/8. Las líneas que empiezan por # son comentarios.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>Sustituir la lista elegida por estas reglas</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>Directo</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>Sitios y direcciones que siempre van directos</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>Sitios y direcciones que siempre pasan por Tovra</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>Sitios y direcciones que se bloquean</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>Cargando reglas…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>El servicio de Tovra no indica ninguna lista de reglas.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>Las reglas aún no se han cargado.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>Reglas: %1 · Líneas: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>sin importar</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>importando…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>No se ha importado nada. Corrige primero estas líneas:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>Línea %1: «%2» no es un dominio, una dirección IP ni un rango CIDR.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… Líneas incorrectas en total: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: conectando...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: conectando a %1...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Error: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: actualizando TovraVPN dividido...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: actualizando las regiones de TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: actualizando la GFWList de TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: actualizando las reglas personalizadas de TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: actualizando Tovra Proxy dividido...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: actualizando las regiones de Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: actualizando la GFWList de Tovra Proxy...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>no se pudo completar la acción</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>la carpeta de registros</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>no existe %1: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>no se pudo abrir %1: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Actual: cargando...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Actualizar ubicaciones</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Cargando ubicaciones...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>Modo: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividido</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>Opciones de división</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>Ruta predeterminada: túnel</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>Ruta predeterminada: directa</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regiones</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; Túnel</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Reglas de división personalizadas</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>Modo: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>Ruta predeterminada: proxy</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; Proxy</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: iniciando...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Servicio: comprobando...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Abrir Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Proxy del sistema</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>Acceso a la red local</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>Directa</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protegida</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Actualizar estado</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Abrir registros</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Cuenta: comprobando...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: servicio no disponible</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>servicio no disponible</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Cuenta: no disponible</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - servicio no disponible</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: cambiando a automático...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: cambiando a WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: cambiando a TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: cambiando a TovraVPN dividido...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: cambiando a Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: cambiando a Tovra Proxy dividido...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Proxy del sistema: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Red local: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Túnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Regiones (%1): %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>No se pudieron actualizar las ubicaciones</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>No se pudieron cargar las ubicaciones</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>No se pudieron actualizar los grupos de ubicaciones</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>No se pudieron cargar los grupos de ubicaciones</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Actualizando las ubicaciones...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Ubicaciones sin cargar</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>No hay ubicaciones en caché</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>No hay ubicaciones</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Actual: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Actualizar ubicaciones (%1 s)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Ubicación: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Ubicación: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Actual: %1 (desactualizada)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>menos de 1 min</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 d %2 h</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: desconectando...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: cerrando sesión...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: actualizando el proxy del sistema...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: actualizando el enrutamiento de la red local...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: activando el Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: desactivando el Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: error al conectar</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: error al desconectar</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Sesión cerrada</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>no se pudo completar la acción de la cuenta</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>no se pudo cambiar el modo</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Modo actualizado</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>Proxy del sistema: %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch activado</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch desactivado</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>no se pudo cambiar el Kill Switch</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>conectado</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>desconectado</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>desconectando</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>listo</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en ejecución</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>Servicio: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>Servicio: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Cuenta: en caché</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Cuenta: es necesario iniciar sesión</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Cuenta: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Cuenta: sesión iniciada</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>activado</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>bloqueado</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · Bloqueada: requiere el plan %2</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>No se pudo leer el estado de la descarga de la actualización.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Descarga cancelada.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>No se pudo descargar la actualización.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>Descarga completada. Abriendo el instalador...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>El enlace de descarga no está disponible.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>No se pudo abrir el enlace de descarga de la actualización.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>El enlace de descarga se abrió en el navegador. Tovra no ejecutará el instalador automáticamente.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Actualización de Tovra</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>Debes actualizar Tovra para poder conectarte. Descarga el instalador o sal de Tovra.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>Ocultar esta actualización</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Salir de Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>Salir de Tovra sin actualizar</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>Abrir enlace de descarga</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Abrir el enlace de descarga de la actualización de Tovra</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Hay una actualización obligatoria disponible</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Hay una nueva actualización de Tovra disponible</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocida</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>La más reciente</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Versión actual: %1
Versión disponible: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>Las notas de la versión no están disponibles.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>Descargando %1 de %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Descargando la actualización...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>Preparando la descarga...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>Verificando la descarga...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>Cancelando la descarga...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>Descargar en segundo plano</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>Descarga el instalador más reciente sin interrumpir tu sesión actual.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Ocultar esta ventana mientras se descarga la actualización</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Cancelar la descarga de la actualización</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>Cancelar descarga</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>Abriendo el instalador...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>Reintentar descarga</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Reintentar la descarga de la actualización</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>Descargar actualización</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Descargar e instalar la actualización de Tovra</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>Reintentando la descarga...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra para Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>La versión de esta aplicación.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>Pide al servicio de Tovra una versión más reciente.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (compilación %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>Desconectando…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>Servicio no disponible</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>Esperando a que responda el servicio de Tovra.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Sesión cerrada</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>Inicia sesión con tu cuenta de Tovra para conectarte.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Última ubicación</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>Tu tráfico pasa por el túnel de Tovra.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>Estableciendo el túnel.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Conectando a %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>Cerrando el túnel.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>El Kill Switch bloquea el tráfico hasta que te conectes.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>Tu tráfico no está protegido.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Error de conexión: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>Aquí aparecerán las ubicaciones a las que te conectes.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Ubicaciones recientes</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>Borrar las ubicaciones recientes</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Conectar a %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>Conectado desde hace %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modo: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>No se pudo abrir el enlace</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>La carpeta de registros no está disponible</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>La carpeta de registros no existe: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>No se pudo abrir la carpeta de registros: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>No se pudo completar la acción de la cuenta</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>Mostrar la página VPN</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>Mostrar la página Ubicaciones</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>Mostrar la página Modo</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>Mostrar la página Configuración</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>Mostrar la página Cuenta</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>Buscar: el campo de conexión rápida de la página VPN, la lista de la página Ubicaciones</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Actualizar ubicaciones</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>Cerrar la ventana; Tovra sigue en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Salir de Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>Cerrar una lista, un menú o un diálogo</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Mostrar estos atajos de teclado</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
