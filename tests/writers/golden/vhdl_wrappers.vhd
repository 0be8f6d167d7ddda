--top d
--


-- (legal notice)


 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgqb1 IS 
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 );  END top_mgqb1;

 ARCHITECTURE RTL OF top_mgqb1 IS

	 ATTRIBUTE synthesis_lumenbox : boolean;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;
	 COMPONENT unit
	 GENERIC 
	 (
		DEPTH	:	NATURAL := 1;
		lpm_hint	:	STRING := "UNUSED"
	 );
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

 	unit_component  :  unit
	  GENERIC MAP (
		DEPTH => 3
	  )
	 PORT MAP (
		d => d,
		q => q
	 );

 END RTL;
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgsb1 IS 
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 );  END top_mgsb1;

 ARCHITECTURE RTL OF top_mgsb1 IS

	 ATTRIBUTE synthesis_lumenbox : boolean;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;
	 COMPONENT unit
	 GENERIC 
	 (
		DEPTH	:	NATURAL := 1;
		lpm_hint	:	STRING := "UNUSED"
	 );
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

 	unit_component  :  unit
	  GENERIC MAP (
		DEPTH => 5
	  )
	 PORT MAP (
		d => d,
		q => q
	 );

 END RTL;

--synthesis_resources = top_mgqb1 2 top_mgsb1 1 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_uu_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_uuu_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mgqb1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mgsb1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_uuu_q;
	u :  top_mgqb1
	  PORT MAP ( 
		d => d,
		q => wire_u_q
	  );
	uu :  top_mgqb1
	  PORT MAP ( 
		d => wire_u_q,
		q => wire_uu_q
	  );
	uuu :  top_mgsb1
	  PORT MAP ( 
		d => wire_uu_q,
		q => wire_uuu_q
	  );

 END RTL; --top
--VALID FILE
